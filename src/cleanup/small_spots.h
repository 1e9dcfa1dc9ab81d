#pragma once

#include "shell/workplace.h"

namespace vendrel {

/// Redraws every cell of which too few pixels kept the cell's own colour, because neighbours
/// painted later covered it: below 44 of 64, 24 of 36 or 12 of 16.
void FixSmallSpots(const Workplace& place);

}  // namespace vendrel
