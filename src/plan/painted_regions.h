#pragma once

#include <vector>

#include "shell/work_state.h"
#include "support/grid.h"

namespace vendrel {

/// One value per picture pixel: columns 0..Across, rows 0..Down are all in use.
using PixelGrid = Grid<int>;

/// A connected patch of one paint, pixels touching side by side.
struct Region {
    int Paint = 0;
    int Pixels = 0;
};

/// The picture cut into patches: what a painter outlines and fills one by one.
struct PaintedRegions {
    PixelGrid Ids;  // index into List per pixel
    std::vector<Region> List;
};

/// The paint on every pixel of the painted picture. A pixel that the brush and the clean-up left
/// bare takes the paint of its own stipple, so that no hole is left in the plan.
/// Throws Error when the picture is not painted.
[[nodiscard]] PixelGrid PaintPerPixel(const WorkState& state, int width, int height);

/// Cuts a picture into regions, numbered in the order of their first pixels, row by row. Crumbs of
/// fewer than `smallest` pixels, which no brush could paint, join the neighbour they share the
/// longest edge with.
[[nodiscard]] PaintedRegions FindRegions(PixelGrid paints, int smallest);

}  // namespace vendrel
