#pragma once

#include "drawing/easel.h"

namespace vendrel {

/// Gives what the brush left of corners, and pixel row and column 0, to areas beside them: the
/// painting then has the areas of the stipple grid, one for one, and each keeps the limits it keeps
/// there. For kits that are to be painted as they are printed; the plain painting keeps its
/// corners.
void JoinCorners(const Easel& easel, const StippleGrid& grid);

}  // namespace vendrel
