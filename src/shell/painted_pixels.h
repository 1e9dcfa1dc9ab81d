#pragma once

#include "shell/records.h"
#include "support/grid.h"

namespace vendrel {

/// What the brush left on the work picture.
struct PaintedPixels {
    Grid<MapPixel> PixelMap;  // one per photo pixel, 0..width, 0..height
};

}  // namespace vendrel
