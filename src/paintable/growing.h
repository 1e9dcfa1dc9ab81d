#pragma once

#include <vector>

#include "paintable/area_map.h"

namespace vendrel {

/// Grows an area into its neighbors until it keeps the limits or meets another of its paint:
/// stipple by stipple, the cheapest first, after the cheapest square that holds its narrowest part.
/// No neighbor is cut in two or falls below the limits. False, with all as it was, where that
/// cannot be done for less than `budget`. Adds the areas that changed to `touched`.
[[nodiscard]] bool Grow(AreaMap& map, int area, SeenSum budget, std::vector<int>& touched);

}  // namespace vendrel
