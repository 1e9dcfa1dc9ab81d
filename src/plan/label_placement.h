#pragma once

#include <vector>

#include "plan/label_fit.h"
#include "plan/label_places.h"

namespace vendrel {

/// Gives every region one symbol at its roomiest place, as tall as the air around it allows, beside
/// a page's cut rather than on it; then one in every other piece of it that a page shows, where
/// there is room, and, in large regions, about every LatticeStep. A symbol that could hardly be
/// read stands outside, where a neighbor has room for it, and points at its region. In order of
/// regions. `places` are what FindPlaces finds in the regions by the same rules, `lines` theirs,
/// smooth or not.
[[nodiscard]] std::vector<PlanLabel> PlaceLabels(const PaintedRegions& regions,
                                                 const LabelPlaces& places, const PlanLines& lines,
                                                 const LabelRules& rules);

}  // namespace vendrel
