#pragma once

#include <vector>

#include "plan/label_placement.h"
#include "plan/page_tiling.h"
#include "plan/painted_regions.h"
#include "plan/plan_lines.h"
#include "plan/plan_sketch.h"
#include "shell/work_state.h"
#include "support/print_scale.h"
#include "support/surface.h"

namespace vendrel {

/// A whole plan, ready to be drawn.
struct PrintPlan {
    PaintedRegions Regions;
    PlanLines Lines;
    PaintAspects Aspects;
    std::vector<PlanLabel> Labels;
    PagePlan Pages;
    PrintScale Scale;     // of the painted picture on the canvas
    SizeMm Canvas;        // the picture and its margins
    PlanPoint PictureAt;  // on it, in millimetres
};

/// Lays out the painted picture for printing; `aspects` are those of the symbols as they will be
/// drawn. Without a canvas asked for it takes the fewest pages on which symbols can be read, and
/// then the largest canvas that those pages hold. Throws Error for an unpainted picture, more
/// paints than symbols or a canvas outside kSmallestCanvasCm..kLargestCanvasCm.
[[nodiscard]] PrintPlan MakePrintPlan(const WorkState& state, const Surface& picture,
                                      const PlanSettings& settings, const SymbolAspects& aspects);
/// The same for a canvas in one piece: no symbol gives way to a cut or comes back beyond it.
[[nodiscard]] PrintPlan MakeUncutPlan(const WorkState& state, const Surface& picture,
                                      const PlanSettings& settings, const SymbolAspects& aspects);

}  // namespace vendrel
