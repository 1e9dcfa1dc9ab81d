#pragma once

#include <string>

#include "shell/given_warnings.h"
#include "shell/ui.h"

namespace vendrel {

/// Tells the painter what is odd but stops nothing; the same sentence only once as long as the
/// program runs, since a template is read again at every change of the difficulty.
inline void WarnOnce(GivenWarnings& given, Ui& screen, const std::string& sentence) {
    if (given.WarningsGiven.insert(sentence).second) {
        screen.ShowMessage("Warning", sentence);
    }
}

}  // namespace vendrel
