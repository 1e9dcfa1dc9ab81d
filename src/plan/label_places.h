#pragma once

#include <span>
#include <vector>

#include "plan/inscribed_boxes.h"
#include "plan/plan_label.h"
#include "plan/region_pieces.h"
#include "plan/symbol_room.h"

namespace vendrel {

struct LabelRules {
    PaintAspects Aspects;
    SymbolAir Air;             // in pixels
    double LegibleHeight = 0;  // in pixels: a repeated symbol as tall as this can be read
    double LatticeStep = 0;    // in pixels: large regions repeat their symbol about this often
    PageCuts Cuts{};
};

/// Where symbols could stand, as tall as could be, lines or not: the roomiest place of every part,
/// and the roomiest of all first.
struct LabelPlaces {
    std::vector<PlanLabel> OfRegions;  // in their order
    RegionPieces Cut;                  // at the pages' cuts, and at necks that look closed in print
    std::vector<PlanLabel> OfPieces;
    std::vector<PlanLabel> Elsewhere;  // where a piece's best place is taken
    std::vector<PlanLabel> OnLattice;
};

/// `boxes` are the roomiest of all regions.
[[nodiscard]] LabelPlaces FindPlaces(const PaintedRegions& regions,
                                     std::span<const InscribedBox> boxes, const LabelRules& rules);

}  // namespace vendrel
