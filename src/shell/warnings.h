#pragma once

#include <string>

#include "shell/workplace.h"

namespace vendrel {

/// Tells the painter what is odd but stops nothing; the same sentence only once as long as the
/// program runs, since a template is read again at every change of the difficulty.
inline void WarnOnce(const Workplace& place, const std::string& sentence) {
    if (place.State.WarningsGiven.insert(sentence).second) {
        place.Screen.ShowMessage("Warning", sentence);
    }
}

}  // namespace vendrel
