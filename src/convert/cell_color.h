#pragma once

#include "paints/nearest_paint.h"
#include "support/surface.h"

namespace vendrel {

/// The colour of one photo pixel.
[[nodiscard]] Channels PixelColor(const Surface& photo, int x, int y);

/// The average of the size x size pixels from (left, top), cut to the photo, each channel rounded
/// to the nearest whole number, halves to the even one. At least one pixel must lie inside; size
/// is at most 16.
[[nodiscard]] Channels AverageColor(const Surface& photo, int left, int top, int size);

}  // namespace vendrel
