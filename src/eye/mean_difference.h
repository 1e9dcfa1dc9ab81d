#pragma once

#include <span>

#include "support/color.h"

namespace vendrel {

/// The mean CIEDE2000 of two pictures, pixel by pixel; 0 for pictures without pixels. Both have as
/// many. Linear in the pixels, but for sorting them.
[[nodiscard]] double MeanDifference(std::span<const Color> one, std::span<const Color> other);

}  // namespace vendrel
