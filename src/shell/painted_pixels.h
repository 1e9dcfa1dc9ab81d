#pragma once

#include "shell/records.h"
#include "support/grid.h"

namespace vendrel {

/// What the brush left on the work picture.
struct PaintedPixels {
    Grid<MapPixel> PixelMap;  // one per photo pixel, 0..width, 0..height
    ValueGrid PrintPaints;    // of a paintable kit: the paint of every pixel, from 1; else empty
};

}  // namespace vendrel
