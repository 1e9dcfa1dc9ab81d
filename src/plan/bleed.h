#pragma once

#include <vector>

#include "plan/plan_lines.h"

namespace vendrel {

/// A border that is carried on past the picture's edge, in pixels.
struct BleedLine {
    PlanPoint From;  // on the edge
    PlanPoint To;
};

/// How far borders are carried on past the sides of a picture, in pixels.
struct Bleed {
    double Across = 0;  // left and right
    double Down = 0;
};

/// Every border that ends at the edge of a picture of that size, carried on straight and square to
/// the edge, so that no two of them meet; and the picture's own sides where only two are carried
/// on.
[[nodiscard]] std::vector<BleedLine> CarryOn(const PlanLines& lines, const PlanPoint& size,
                                             const Bleed& bleed);

}  // namespace vendrel
