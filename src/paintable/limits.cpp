#include "paintable/limits.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vendrel {

PixelLimits LimitsInPixels(const PaintLimits& limits, PrintScale scale) {
    // What the scale rounds shall not cost a pixel.
    constexpr double kRounding = 1e-9;
    return {static_cast<int>(std::ceil(scale.PixelsOfMm2(limits.SmallestMm2) - kRounding)),
            scale.Pixels(limits.NarrowestMm)};
}

int StippleAt(int pixel, int stippleSize, int count) {
    return std::clamp((pixel - 1) / stippleSize, 0, count - 1);
}

std::vector<int> SidesOf(int pixels, int stippleSize, int count) {
    std::vector<int> sides(static_cast<std::size_t>(count));
    for (int pixel = 0; pixel < pixels; ++pixel) {
        ++sides[static_cast<std::size_t>(StippleAt(pixel, stippleSize, count))];
    }
    return sides;
}

}  // namespace vendrel
