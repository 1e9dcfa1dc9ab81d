#pragma once

#include <cmath>

namespace vendrel {

/// Nearest whole number, halves to the even neighbour.
[[nodiscard]] inline int RoundHalfEven(double value) {
    return static_cast<int>(std::nearbyint(value));
}

}  // namespace vendrel
