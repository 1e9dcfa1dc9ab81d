#pragma once

#include <vector>

#include "plan/label_placement.h"
#include "plan/outlines.h"
#include "plan/page_tiling.h"
#include "plan/painted_regions.h"
#include "shell/work_state.h"
#include "support/print_scale.h"
#include "support/surface.h"

namespace vendrel {

/// What a painter chooses for the printed plan.
struct PlanSettings {
    Paper Sheet = Paper::A4;
    double CanvasCm = 0;  // width of the finished canvas; 0: chosen by MakePrintPlan
};

/// Width of a canvas that anybody would paint, in centimetres.
inline constexpr double kSmallestCanvasCm = 10;
inline constexpr double kLargestCanvasCm = 300;

/// Height of the smallest symbol when the canvas may be as large as it likes, in millimetres.
inline constexpr double kLegibleSymbolMm = 2;
/// A symbol larger than this wastes paint.
inline constexpr double kLargestSymbolMm = 3;

/// Where things stand on a page of the plan, in millimetres.
struct PlanPageDesign {
    static constexpr double kMargin = 7;  // what printers cannot reach
    static constexpr double kHeading = 14;
    static constexpr double kMarks = 5;  // crop marks around the picture
    // The picture, the heading and the list begin where the left margin is cut off.
    static constexpr double kLeft = kMargin + kMarks;
    static constexpr double kLegendColumn = 46;
    static constexpr double kLegendRow = 4.3;

    [[nodiscard]] static double ListWidth(double paperWidth);
    [[nodiscard]] static int LegendColumns(double paperWidth);
    [[nodiscard]] static double LegendHeight(double paperWidth, int paints);
};

/// A whole plan, ready to be drawn.
struct PrintPlan {
    PaintedRegions Regions;
    std::vector<PlanLine> Lines;
    PaintAspects Aspects;
    std::vector<PlanLabel> Labels;
    PagePlan Pages;
    PrintScale Scale;  // of the painted picture on the canvas
};

/// A part of the canvas in millimeters as one of the painted picture in pixels.
[[nodiscard]] PlanRect InPixels(const PlanRect& part, PrintScale scale);

/// Lays out the painted picture for printing; `aspects` are those of the symbols as they will be
/// drawn. Without a canvas asked for it takes the fewest pages on which symbols can be read, and
/// then the largest canvas that those pages hold. Throws Error for an unpainted picture, more
/// paints than symbols or a canvas outside kSmallestCanvasCm..kLargestCanvasCm.
[[nodiscard]] PrintPlan MakePrintPlan(const WorkState& state, const Surface& picture,
                                      const PlanSettings& settings, const SymbolAspects& aspects);

}  // namespace vendrel
