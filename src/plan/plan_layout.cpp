#include "plan/plan_layout.h"

#include <cmath>
#include <utility>

#include "plan/smooth_lines.h"

namespace vendrel {
namespace {

// A hand's breadth without a symbol has to be searched.
constexpr double kLatticeMm = 35;
// A symbol that stands in its area again may be somewhat smaller than the first.
constexpr double kRepeated = 0.65;

// The first whole pixel behind every cut.
PageCuts CutsInPixels(const PrintPlan& plan) {
    constexpr double kRounding = 1e-6;
    const auto pixelAt = [&plan](double at) {
        return static_cast<int>(std::ceil(plan.Scale.Pixels(at) - kRounding));
    };
    PageCuts cuts;
    for (const PageTile& tile : plan.Pages.Tiles) {
        if (tile.Row == 0 && tile.Column > 0) {
            cuts.Columns.push_back(pixelAt(tile.Own.Left));
        }
        if (tile.Column == 0 && tile.Row > 0) {
            cuts.Rows.push_back(pixelAt(tile.Own.Top));
        }
    }
    return cuts;
}

PlanLines LinesOf(const PrintPlan& plan, const WorkState& state, const PlanSettings& settings) {
    PlanLines stairs = TraceLines(plan.Regions.Ids);
    if (!HasSmoothLines(settings, state)) {
        return stairs;
    }
    const SmoothRules rules{static_cast<double>(state.StippleSize),
                            plan.Scale.Pixels(state.Chosen.Limits.NarrowestMm)};
    return SmoothLines(plan.Regions, std::move(stairs), rules);
}

void AddLabels(PrintPlan& plan, const PageCuts& cuts) {
    LabelRules rules;
    rules.Aspects = plan.Aspects;
    rules.LegibleHeight = plan.Scale.Pixels(kRepeated * kLegibleSymbolMm);
    rules.Air = InPixels(AirInPrint(), plan.Scale);
    rules.LatticeStep = plan.Scale.Pixels(kLatticeMm);
    rules.Cuts = cuts;
    plan.Labels = PlaceLabels(plan.Regions, plan.Lines, rules);
}

PrintPlan WithoutLabels(const WorkState& state, PlanSketch sketch, const PlanSettings& settings) {
    PlanSheets sheets = LayOutSheets(sketch, settings);
    PrintPlan plan;
    plan.Aspects = std::move(sketch.Aspects);
    plan.Regions = std::move(sketch.Regions);
    plan.Pages = std::move(sheets.Pages);
    plan.Scale = sheets.Scale;
    plan.Canvas = sheets.Canvas;
    plan.PictureAt = sheets.PictureAt;
    plan.Lines = LinesOf(plan, state, settings);
    return plan;
}

}  // namespace

PrintPlan MakePrintPlan(const WorkState& state, const Surface& picture,
                        const PlanSettings& settings, const SymbolAspects& aspects) {
    PrintPlan plan = WithoutLabels(state, SketchPlan(state, picture, aspects), settings);
    AddLabels(plan, CutsInPixels(plan));
    return plan;
}

PrintPlan MakeUncutPlan(const WorkState& state, const Surface& picture,
                        const PlanSettings& settings, const SymbolAspects& aspects) {
    PrintPlan plan = WithoutLabels(state, SketchPlan(state, picture, aspects), settings);
    AddLabels(plan, {});
    return plan;
}

}  // namespace vendrel
