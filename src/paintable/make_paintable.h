#pragma once

#include "paintable/area_map.h"

namespace vendrel {

/// How much an area that is too small may cost to grow, for what it costs to give it up: 0 never
/// grows, 50 is usual, 100 grows wherever it can.
inline constexpr int kUsualDetail = 50;
inline constexpr int kMostDetail = 100;

/// The paints of a stipple grid once no area is below the limits: the smallest areas first, each
/// merged into its neighbors or grown, whichever costs less. A grid too small for the limits ends
/// as one area.
[[nodiscard]] ValueGrid MakePaintable(const StipplePicture& picture, const SeenTable& table,
                                      const AreaTerms& terms, int detail);

}  // namespace vendrel
