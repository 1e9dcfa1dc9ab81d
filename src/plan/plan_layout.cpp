#include "plan/plan_layout.h"

#include <cmath>
#include <future>
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

LabelRules RulesFor(const PrintPlan& plan, PlanCut cut) {
    LabelRules rules;
    rules.Aspects = plan.Aspects;
    rules.LegibleHeight = plan.Scale.Pixels(kRepeated * kLegibleSymbolMm);
    rules.Air = InPixels(AirInPrint(), plan.Scale);
    rules.LatticeStep = plan.Scale.Pixels(kLatticeMm);
    rules.Cuts = cut == PlanCut::AtPages ? CutsInPixels(plan) : PageCuts{};
    return rules;
}

PrintPlan Bare(const PlanSketch& sketch, PlanSheets sheets) {
    PrintPlan plan;
    plan.Regions = sketch.Regions;
    plan.Paints = sketch.Paints;
    plan.Aspects = sketch.Aspects;
    plan.Pages = std::move(sheets.Pages);
    plan.Scale = sheets.Scale;
    plan.Canvas = sheets.Canvas;
    plan.PictureAt = sheets.PictureAt;
    return plan;
}

}  // namespace

PrintPlan MakePrintPlan(const WorkState& state, const PlanSketch& sketch,
                        const PlanSettings& settings, PlanCut cut) {
    PrintPlan plan = Bare(sketch, LayOutSheets(sketch, settings));
    const LabelRules rules = RulesFor(plan, cut);
    auto places = std::async(std::launch::async,
                             [&] { return FindPlaces(sketch.Regions, sketch.Boxes, rules); });
    plan.Lines = LinesOf(plan, state, settings);
    plan.Labels = PlaceLabels(plan.Regions, places.get(), plan.Lines, rules);
    return plan;
}

PrintPlan WithOtherLabels(const PrintPlan& plan, const PlanSketch& sketch, PlanCut cut) {
    PrintPlan other = plan;
    const LabelRules rules = RulesFor(plan, cut);
    const LabelPlaces places = FindPlaces(sketch.Regions, sketch.Boxes, rules);
    other.Labels = PlaceLabels(plan.Regions, places, plan.Lines, rules);
    return other;
}

}  // namespace vendrel
