#include "plan/plan_layout.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "output/cell_numbering.h"
#include "regions/crumbs.h"
#include "support/error.h"

namespace vendrel {
namespace {

// A hand's breadth without a symbol has to be searched.
constexpr double kLatticeMm = 35;
// A canvas has a round width where nothing speaks against it.
constexpr double kRoundMm = 5;
// The share of a stipple's symbol that is left where its neighbours nibbled at it.
constexpr double kNibbled = 0.65;

void RequireCanvas(double widthCm, const Surface& picture) {
    const double heightCm = widthCm * picture.Height() / picture.Width();
    if (widthCm < kSmallestCanvasCm || std::max(widthCm, heightCm) > kLargestCanvasCm) {
        throw Error("A canvas of " + std::to_string(std::lround(widthCm)) + " x " +
                    std::to_string(std::lround(heightCm)) +
                    " cm cannot be printed. Choose a width of 10 cm or more, and no side longer "
                    "than 300 cm.");
    }
}

// So large that every symbol can be read. A stipple that its neighbours nibbled at may take a
// somewhat smaller one: a single odd shape shall not blow up the whole canvas.
PrintScale LegibleScale(int stippleSize, const PaintedRegions& regions,
                        const PaintAspects& aspects) {
    double inStipple = stippleSize;
    for (const double aspect : aspects) {
        inStipple = std::min(inStipple, SymbolHeightInStipple(stippleSize, aspect));
    }
    return PrintScale::OfPixel(kLegibleSymbolMm /
                               std::max(SmallestSymbol(regions, aspects), kNibbled * inStipple));
}

PrintScale ScaleOf(const PlanSettings& settings, const Surface& picture) {
    RequireCanvas(settings.CanvasCm, picture);
    return PrintScale::OfCanvas(settings.CanvasCm, picture.Width());
}

std::vector<PaperChoice> ChoicesFor(Paper paper) {
    using Design = PlanPageDesign;
    const PageFrame frame{Design::kMargin + Design::kMarks,
                          Design::kMargin + Design::kHeading + Design::kMarks,
                          Design::kMargin + Design::kMarks};
    const SizeMm upright = SizeOf(paper);
    return {{upright, frame}, {{upright.Height, upright.Width}, frame}};
}

// Paper that is printed anyway may as well carry larger symbols.
double Growth(const PagePlan& pages) {
    const double largest = std::min(RoomToGrow(pages), kLargestSymbolMm / kLegibleSymbolMm);
    const double width = std::floor(pages.Canvas.Width * largest / kRoundMm) * kRoundMm;
    return std::max(1.0, width / pages.Canvas.Width);
}

void LayOutPages(PrintPlan& plan, const PlanSettings& settings, int stippleSize,
                 const Surface& picture) {
    const PrintScale scale = plan.Scale;
    const auto listHeight = [&plan, scale](const PaperChoice& paper, const PlanRect& own) {
        const auto paints = PaintsWithin(plan.Regions, InPixels(own, scale));
        return PlanPageDesign::LegendHeight(paper.Sheet.Width, static_cast<int>(paints.size()));
    };
    plan.Pages = PlanPages({{scale.Mm(picture.Width()), scale.Mm(picture.Height())},
                            // Pixel 0 is before the first stipple.
                            {scale.MmPerPixel(), scale.MmPerStipple(stippleSize)},
                            listHeight},
                           ChoicesFor(settings.Sheet));
    if (settings.CanvasCm == 0) {
        const double growth = Growth(plan.Pages);
        plan.Pages = Enlarged(plan.Pages, growth);
        plan.Scale = scale.Enlarged(growth);
    }
}

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

PlanRect InPixels(const PlanRect& part, PrintScale scale) {
    return {scale.Pixels(part.Left), scale.Pixels(part.Top), scale.Pixels(part.Right),
            scale.Pixels(part.Bottom)};
}

double PlanPageDesign::ListWidth(double paperWidth) {
    return paperWidth - kLeft - kMargin;
}

int PlanPageDesign::LegendColumns(double paperWidth) {
    return static_cast<int>(ListWidth(paperWidth) / kLegendColumn);
}

double PlanPageDesign::LegendHeight(double paperWidth, int paints) {
    const int columns = LegendColumns(paperWidth);
    const int rows = (paints + columns - 1) / columns;
    return rows * kLegendRow;
}

PrintPlan MakePrintPlan(const WorkState& state, const Surface& picture,
                        const PlanSettings& settings, const SymbolAspects& aspects) {
    RequireSymbols(state);
    PrintPlan plan;
    plan.Aspects = AspectsOf(state.PaintColors, aspects);
    plan.Regions = FindRegionsWithoutCrumbs(
        PaintPerPixel(state, state, state.StippleSize, picture.Width(), picture.Height()),
        TraitsOf(state.Chosen.Level).FewestOwnPixels);
    plan.Lines = TraceOutlines(plan.Regions.Ids);
    plan.Scale = settings.CanvasCm > 0
                     ? ScaleOf(settings, picture)
                     : LegibleScale(state.StippleSize, plan.Regions, plan.Aspects);
    LayOutPages(plan, settings, state.StippleSize, picture);
    LabelRules rules;
    rules.Aspects = plan.Aspects;
    rules.LegibleHeight = plan.Scale.Pixels(kNibbled * kLegibleSymbolMm);
    rules.LargestHeight = plan.Scale.Pixels(kLargestSymbolMm);
    rules.LatticeStep = plan.Scale.Pixels(kLatticeMm);
    CutPixels cuts = CutsInPixels(plan);
    rules.PageColumns = std::move(cuts.Columns);
    rules.PageRows = std::move(cuts.Rows);
    plan.Labels = PlaceLabels(plan.Regions, rules);
    return plan;
}

}  // namespace vendrel
