#pragma once

#include "plan/plan_lines.h"

namespace vendrel {

/// What smoothing has to go by, in pixels.
struct SmoothRules {
    double Stair = 0;   // the side of the stipples whose stairs are to vanish
    double Narrow = 0;  // how broad a brush is
};

/// The borders of areas, which `lines` are, as curves: the same chains and rings, of straight
/// pieces so short that they look round. Junctions, the picture's edge and the corners between long
/// straight runs stay in place; no two chains meet but at junctions; no area loses more than a
/// tenth of its size, and none its room for a disc as broad as the brush, or for its own largest
/// disc where that is smaller; no part narrower than the brush becomes narrower by more than a
/// tenth, and no other one narrower than that. Where a curve would break any of that the chain
/// follows its stairs more closely, down to the stairs themselves.
[[nodiscard]] PlanLines SmoothLines(const PaintedRegions& areas, PlanLines lines,
                                    const SmoothRules& rules);

}  // namespace vendrel
