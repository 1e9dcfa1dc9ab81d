#include "plan/plan_layout.h"

#include <cmath>
#include <utility>

namespace vendrel {
namespace {

// A hand's breadth without a symbol has to be searched.
constexpr double kLatticeMm = 35;
// A symbol that stands in its area again may be somewhat smaller than the first.
constexpr double kRepeated = 0.65;

// The first whole pixel behind every cut.
struct CutPixels {
    std::vector<int> Columns;
    std::vector<int> Rows;
};

CutPixels CutsInPixels(const PrintPlan& plan) {
    constexpr double kRounding = 1e-6;
    const auto pixelAt = [&plan](double at) {
        return static_cast<int>(std::ceil(plan.Scale.Pixels(at) - kRounding));
    };
    CutPixels cuts;
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

}  // namespace

PrintPlan MakePrintPlan(const WorkState& state, const Surface& picture,
                        const PlanSettings& settings, const SymbolAspects& aspects) {
    PlanSketch sketch = SketchPlan(state, picture, aspects);
    PlanSheets sheets = LayOutSheets(sketch, settings);
    PrintPlan plan;
    plan.Aspects = std::move(sketch.Aspects);
    plan.Regions = std::move(sketch.Regions);
    plan.Lines = TraceOutlines(plan.Regions.Ids);
    plan.Pages = std::move(sheets.Pages);
    plan.Scale = sheets.Scale;
    LabelRules rules;
    rules.Aspects = plan.Aspects;
    rules.LegibleHeight = plan.Scale.Pixels(kRepeated * kLegibleSymbolMm);
    rules.LargestHeight = plan.Scale.Pixels(kLargestSymbolMm);
    rules.LatticeStep = plan.Scale.Pixels(kLatticeMm);
    CutPixels cuts = CutsInPixels(plan);
    rules.PageColumns = std::move(cuts.Columns);
    rules.PageRows = std::move(cuts.Rows);
    plan.Labels = PlaceLabels(plan.Regions, rules);
    return plan;
}

}  // namespace vendrel
