#pragma once

#include <vector>

#include "paintable/area_map.h"

namespace vendrel {

/// How an area is best given up, and what that costs over all stipples that change: all of it joins
/// one neighbor, with the paint that suits both best, or each stipple one of its own.
struct MergePlan {
    struct Step {
        int Cell = 0;
        int Into = 0;
    };
    bool Possible = false;  // not for the only area there is
    SeenSum Cost = 0;
    int Into = AreaMap::kNoArea;  // all of it, or
    int Paint = 0;
    std::vector<Step> Steps;  // stipple by stipple
};

/// Of plans that cost the same: as a whole rather than in parts, into the lowest number.
[[nodiscard]] MergePlan PlanMerge(const AreaMap& map, int area);

/// Carries a plan out; adds the areas that changed to `touched`.
void Merge(AreaMap& map, int area, const MergePlan& plan, std::vector<int>& touched);

}  // namespace vendrel
