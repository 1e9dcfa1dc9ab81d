#pragma once

#include "drawing/easel.h"
#include "shell/stipple_grid.h"

namespace vendrel {

/// Redraws every cell of which too few pixels kept the cell's own colour, because neighbours
/// painted later covered it: below 44 of 64, 24 of 36 or 12 of 16.
void FixSmallSpots(const Easel& easel, const StippleGrid& grid);

}  // namespace vendrel
