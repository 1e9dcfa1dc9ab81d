#include "shell/settings.h"

#include <algorithm>

namespace vendrel {

void SetColorChecks(Settings& settings, int finalColors) {
    const bool offered = std::ranges::find(kFinalPaints, finalColors) != kFinalPaints.end();
    settings.FinalPaints = offered ? finalColors : 0;
}

}  // namespace vendrel
