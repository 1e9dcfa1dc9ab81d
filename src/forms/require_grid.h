#pragma once

#include "shell/work_state.h"
#include "support/error.h"

namespace vendrel {

/// Throws Error while the photo has no stipples to work on.
inline void RequireGrid(const WorkState& state) {
    if (!state.PictureLoaded || state.Stipples.Across() < 1 || state.PaintCount == 0) {
        throw Error(
            "The photo has no stipples yet. Choose \"Change To Stipples\" in the Picture menu "
            "first.");
    }
}

}  // namespace vendrel
