#pragma once

#include <algorithm>

#include "plan/plan_sketch.h"
#include "support/color.h"

namespace vendrel {

/// Light enough to vanish under paint, dark enough to follow.
inline constexpr int kBorderGray = 120;
inline constexpr int kSymbolGray = 70;

/// Radius of the dot at the end of a symbol's line, in millimeters.
inline constexpr double kLeaderDotMm = 0.3;

/// As dark as the painter wants what usually is that gray.
[[nodiscard]] constexpr Color PlanInk(int usual, int gray) {
    const int level = std::max(0, 255 - (255 - usual) * gray / kUsualGray);
    return Rgb(level, level, level);
}

}  // namespace vendrel
