#pragma once

#include <vector>

#include "shell/paint_limits.h"
#include "support/print_scale.h"

namespace vendrel {

/// PaintLimits on a painting.
struct PixelLimits {
    int Smallest = 0;      // pixels
    double Narrowest = 0;  // pixels
};

[[nodiscard]] PixelLimits LimitsInPixels(const PaintLimits& limits, PrintScale scale);

/// How many pixels of the painting belong to each column and row of stipples. Pixel row and column
/// 0 lie before the first stipple and count with it, so the last one is short.
struct StippleSides {
    std::vector<int> Widths;   // by column
    std::vector<int> Heights;  // by row
};

/// The column or row, counted from 0, of a pixel.
[[nodiscard]] int StippleAt(int pixel, int stippleSize, int count);

/// Of `pixels` pixels cut into `count` stipples.
[[nodiscard]] std::vector<int> SidesOf(int pixels, int stippleSize, int count);

}  // namespace vendrel
