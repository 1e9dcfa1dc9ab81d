#pragma once

#include "drawing/easel.h"
#include "shell/stipple_grid.h"

namespace vendrel {

// Fill the corner pixels that the round brush left black: with the paint of the two neighbours
// flanking the corner where they agree, else with the cell's own. A neighbour in the last column
// or the last row counts as absent.

void SmartClean8(const Easel& easel, const StippleGrid& grid);
void SmartClean6(const Easel& easel, const StippleGrid& grid);
void SmartClean4(const Easel& easel, const StippleGrid& grid);

}  // namespace vendrel
