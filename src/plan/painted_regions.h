#pragma once

#include "regions/labelling.h"
#include "shell/painted_pixels.h"
#include "shell/stipple_grid.h"

namespace vendrel {

/// One value per picture pixel.
using PixelGrid = ValueGrid;

/// The picture cut into patches of one paint, which is their value, pixels touching side by side:
/// what a painter outlines and fills one by one.
using PaintedRegions = Regions;

/// The paint on every pixel of the painted picture. A pixel that the brush and the clean-up left
/// bare takes the paint of its own stipple, so that no hole is left in the plan.
/// Throws Error when the picture is not painted.
[[nodiscard]] PixelGrid PaintPerPixel(const PaintedPixels& pixels, const StippleGrid& grid,
                                      int stippleSize, int width, int height);

}  // namespace vendrel
