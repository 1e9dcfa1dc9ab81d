#pragma once

#include <vector>

#include "support/surface.h"

namespace vendrel::test {

/// A picture whose pixel (x, y) is `color(x, y)`.
template <class ColorAt>
Surface PictureOf(int width, int height, ColorAt color) {
    Surface picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.Set(x, y, color(x, y));
        }
    }
    return picture;
}

/// A picture given row by row, the highest first.
inline Surface PictureOf(const std::vector<std::vector<Color>>& rows) {
    return PictureOf(
        static_cast<int>(rows[0].size()), static_cast<int>(rows.size()),
        [&](int x, int y) { return rows[static_cast<unsigned>(y)][static_cast<unsigned>(x)]; });
}

}  // namespace vendrel::test
