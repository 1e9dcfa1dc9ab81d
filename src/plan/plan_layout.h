#pragma once

#include <vector>

#include "plan/label_placement.h"
#include "plan/page_tiling.h"
#include "plan/painted_regions.h"
#include "plan/plan_lines.h"
#include "plan/plan_sketch.h"
#include "shell/work_state.h"
#include "support/print_scale.h"

namespace vendrel {

/// A whole plan, ready to be drawn.
struct PrintPlan {
    PaintedRegions Regions;
    PaintFinder Paints;
    PlanLines Lines;
    PaintAspects Aspects;
    std::vector<PlanLabel> Labels;
    PagePlan Pages;
    PrintScale Scale;     // of the painted picture on the canvas
    SizeMm Canvas;        // the picture and its margins
    PlanPoint PictureAt;  // on it, in millimetres
};

/// Where symbols give way to the pages' cuts and come back beyond them.
enum class PlanCut { AtPages, Nowhere };

/// Lays out the sketched picture for printing. Without a canvas asked for it takes the fewest pages
/// on which symbols can be read, and then the largest canvas that those pages hold. Throws as
/// LayOutSheets.
[[nodiscard]] PrintPlan MakePrintPlan(const WorkState& state, const PlanSketch& sketch,
                                      const PlanSettings& settings, PlanCut cut);
/// The same plan cut otherwise; `sketch` is the one that it was made of.
[[nodiscard]] PrintPlan WithOtherLabels(const PrintPlan& plan, const PlanSketch& sketch,
                                        PlanCut cut);

}  // namespace vendrel
