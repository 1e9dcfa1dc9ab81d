#include "convert/cell_color.h"

#include <algorithm>
#include <cassert>
#include <cstdint>
#include <span>

#include "paints/color_match.h"
#include "support/in_parts.h"
#include "support/rounding.h"

namespace vendrel {

Channels PixelColor(const Surface& photo, int x, int y) {
    Channels color;
    GetRgb(photo.Get(x, y), color.Red, color.Green, color.Blue);
    return color;
}

// Red and blue are summed in one number: 256 pixels of 255 fit the 16 bits between them.
Channels AverageColor(const Surface& photo, int left, int top, int size) {
    const int right = std::min(left + size, photo.Width());
    const int bottom = std::min(top + size, photo.Height());
    assert(size <= 16 && left < right && top < bottom);
    std::uint32_t redBlue = 0;
    std::uint32_t green = 0;
    for (int y = top; y < bottom; ++y) {
        const auto row = photo.Row(y);
        for (int x = left; x < right; ++x) {
            const auto pixel = static_cast<std::uint32_t>(row[x]);
            redBlue += pixel & 0xFF00FF;
            green += (pixel >> 8) & 0xFF;
        }
    }
    const auto count = static_cast<float>((right - left) * (bottom - top));
    const auto average = [count](std::uint32_t sum) {
        return RoundHalfEven(static_cast<float>(sum) / count);
    };
    return {average(redBlue & 0xFFFF), average(green), average(redBlue >> 16)};
}

std::vector<Color> StippleColors(const Surface& photo, CellPos grid, int size, Sampling method) {
    std::vector<Color> colors(static_cast<std::size_t>(grid.X) * static_cast<std::size_t>(grid.Y));
    InParts(grid.X * grid.Y, [&](Slice part) {
        for (int n = part.First; n < part.End; ++n) {
            const CellPos corner{1 + n % grid.X * size, 1 + n / grid.X * size};
            const Channels c = StippleColor(photo, corner, size, method);
            colors[static_cast<std::size_t>(n)] = Rgb(c.Red, c.Green, c.Blue);
        }
    });
    return colors;
}

}  // namespace vendrel
