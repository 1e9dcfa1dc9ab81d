#pragma once

#include <vector>

#include "plan/outlines.h"
#include "plan/painted_regions.h"

namespace vendrel {

/// What lies beyond the picture's edge.
inline constexpr int kOutside = -1;

/// A piece of border between two areas: from one junction, where three or more areas meet or two do
/// by their corners, to the next, or all the way round through none. Every border is one chain for
/// both its areas.
struct PlanChain {
    int Left = kOutside;  // the area on either hand of somebody who walks along the points
    int Right = kOutside;
    PlanLine Points{};    // two or more; the last is the first where it goes all the way round
    bool IsLoop = false;  // through no junction

    [[nodiscard]] bool IsEdge() const { return Left == kOutside || Right == kOutside; }
};

/// A chain as part of a ring: walked as it stands or from its end.
struct ChainWay {
    int Chain = 0;
    bool Reversed = false;
    bool operator==(const ChainWay&) const = default;
};

/// The ways around an area, each beginning where the one before it ends, the first where the last
/// ends. The area lies to the right: its outer ring runs clockwise on paper, those around the holes
/// in it run the other way.
using PlanRing = std::vector<ChainWay>;

/// All borders of a picture cut into areas, the picture's own edge included.
struct PlanLines {
    std::vector<PlanChain> Chains;
    std::vector<std::vector<PlanRing>> Rings;  // by area; the outer one is not always the first
};

/// The borders of pixels: every step level or upright, with points only where chains turn.
[[nodiscard]] PlanLines TraceLines(const PixelGrid& ids);

/// The points of a ring, the first of them not repeated at the end.
[[nodiscard]] PlanLine PointsOf(const PlanLines& lines, const PlanRing& ring);

/// What an area's rings enclose, in pixels.
[[nodiscard]] double SizeOfArea(const PlanLines& lines, int area);

}  // namespace vendrel
