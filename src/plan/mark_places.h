#pragma once

#include <span>
#include <vector>

#include "plan/outlines.h"

namespace vendrel {

/// A level or upright line along which two pages meet.
struct CutLine {
    PlanPoint From;
    PlanPoint To;
};

/// Where the two round marks of a cut stand, one in each half of it: at the place nearest to a
/// fifth from its end where a circle of that radius covers no symbol; where there is none, where
/// the symbols leave the most room. Both pages find the same places. All in the same unit.
[[nodiscard]] std::vector<PlanPoint> PlaceMarks(const CutLine& cut, double radius,
                                                std::span<const PlanRect> symbols);

}  // namespace vendrel
