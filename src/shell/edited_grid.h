#pragma once

#include "shell/records.h"
#include "support/grid.h"

namespace vendrel {

/// The touch-up editor's copy of the stipple grid. Its paints are the found palette.
struct EditedGrid {
    Grid<StippleCell> EditStipples;
};

}  // namespace vendrel
