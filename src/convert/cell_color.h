#pragma once

#include <vector>

#include "paints/nearest_paint.h"
#include "shell/settings.h"
#include "support/cell_pos.h"
#include "support/surface.h"

namespace vendrel {

/// The colour of one photo pixel.
[[nodiscard]] Channels PixelColor(const Surface& photo, int x, int y);

/// The average of the size x size pixels from (left, top), cut to the photo, each channel rounded
/// to the nearest whole number, halves to the even one. At least one pixel must lie inside; size
/// is at most 16.
[[nodiscard]] Channels AverageColor(const Surface& photo, int left, int top, int size);

/// The color that a stipple of that corner stands for.
[[nodiscard]] inline Channels StippleColor(const Surface& photo, CellPos corner, int size,
                                           Sampling method) {
    return method == Sampling::Pixel ? PixelColor(photo, corner.X + size / 2, corner.Y + size / 2)
                                     : AverageColor(photo, corner.X, corner.Y, size);
}

/// Those of a whole grid, row by row.
[[nodiscard]] std::vector<Color> StippleColors(const Surface& photo, CellPos grid, int size,
                                               Sampling method);

}  // namespace vendrel
