#pragma once

#include <vector>

#include "plan/label_fit.h"
#include "plan/plan_label.h"

namespace vendrel {

struct LabelRules {
    PaintAspects Aspects;
    SymbolAir Air;             // in pixels
    double LegibleHeight = 0;  // in pixels: a repeated symbol as tall as this can be read
    double LatticeStep = 0;    // in pixels: large regions repeat their symbol about this often
    PageCuts Cuts{};
};

/// Gives every region one symbol at its roomiest place, as tall as the air around it allows, beside
/// a page's cut rather than on it; then one in every other piece of it that a page shows, where
/// there is room, and, in large regions, about every LatticeStep. A symbol that could hardly be
/// read stands outside, where a neighbor has room for it, and points at its region. In order of
/// regions. `lines` are those of the regions, smooth or not.
[[nodiscard]] std::vector<PlanLabel> PlaceLabels(const PaintedRegions& regions,
                                                 const PlanLines& lines, const LabelRules& rules);

}  // namespace vendrel
