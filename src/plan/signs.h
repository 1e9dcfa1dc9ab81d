#pragma once

#include <string_view>
#include <vector>

#include "plan/outlines.h"

namespace vendrel {

/// A shape that marks a paint: closed rings, filled where a point lies in an odd number of them.
/// Centered on (0, 0), at most 1 tall and 1 wide, y downwards.
struct Sign {
    std::string_view Name;
    std::vector<PlanLine> Rings;
};

/// Those that are told apart best in print come first: of `count` paints the first `count` are
/// taken. As many as there are symbols.
[[nodiscard]] const std::vector<Sign>& Signs();

}  // namespace vendrel
