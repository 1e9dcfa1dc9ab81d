#pragma once

#include <vector>

#include "plan/label_placement.h"

namespace vendrel {

/// Moves the symbols that could hardly be read in their regions, where these have no other, out of
/// them: legible and into the nearest region that has room to spare, pointing back to where they
/// stood. No line leads through a symbol, and none covers another; both ends are on one page. Where
/// there is no such place they stay.
void MoveOutside(std::vector<PlanLabel>& labels, const PaintedRegions& regions, const LabelFit& fit,
                 const LabelRules& rules);

}  // namespace vendrel
