#include "plan/plan_layout.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "output/cell_numbering.h"
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
double LegibleScale(const WorkState& state, const PaintedRegions& regions,
                    const SymbolAspects& aspects) {
    double inStipple = state.StippleSize;
    for (int p = 1; p <= state.PaintCount; ++p) {
        inStipple = std::min(
            inStipple,
            SymbolHeightInStipple(state.StippleSize, aspects.at(static_cast<std::size_t>(p))));
    }
    return kLegibleSymbolMm / std::max(SmallestSymbol(regions, aspects), kNibbled * inStipple);
}

double ScaleOf(const PlanSettings& settings, const Surface& picture) {
    RequireCanvas(settings.CanvasCm, picture);
    return settings.CanvasCm * 10 / picture.Width();
}

// The shorter the list of paints may be, the more of the paper is left for the picture.
std::vector<PaperChoice> ChoicesFor(Paper paper, int paints) {
    using Design = PlanPageDesign;
    const SizeMm upright = SizeOf(paper);
    std::vector<PaperChoice> choices;
    for (const SizeMm sheet : {upright, SizeMm{upright.Height, upright.Width}}) {
        const int columns = Design::LegendColumns(sheet.Width);
        for (int listed = columns; listed < paints + columns; listed += columns) {
            choices.push_back(
                {sheet,
                 {Design::kMargin + Design::kMarks,
                  Design::kMargin + Design::kHeading + Design::kMarks,
                  Design::kMargin + Design::kMarks + Design::LegendHeight(sheet.Width, listed)}});
        }
    }
    return choices;
}

PlanRect InPixels(const PlanRect& part, double mmPerPixel) {
    return {part.Left / mmPerPixel, part.Top / mmPerPixel, part.Right / mmPerPixel,
            part.Bottom / mmPerPixel};
}

bool HoldsItsLists(const PagePlan& pages, const PaintedRegions& regions, double mmPerPixel) {
    constexpr double kRounding = 1e-6;
    const double room =
        pages.Frame.Bottom - PlanPageDesign::kMargin - PlanPageDesign::kMarks + kRounding;
    return std::ranges::all_of(pages.Tiles, [&](const PageTile& tile) {
        const auto paints = PaintsWithin(regions, InPixels(tile.Own, mmPerPixel));
        return PlanPageDesign::LegendHeight(pages.Sheet.Width, static_cast<int>(paints.size())) <=
               room;
    });
}

// Paper that is printed anyway may as well carry larger symbols.
double Growth(const PagePlan& pages) {
    const double largest = std::min(RoomToGrow(pages), kLargestSymbolMm / kLegibleSymbolMm);
    const double width = std::floor(pages.Canvas.Width * largest / kRoundMm) * kRoundMm;
    return std::max(1.0, width / pages.Canvas.Width);
}

void LayOutPages(PrintPlan& plan, const PlanSettings& settings, const WorkState& state,
                 const Surface& picture) {
    const SizeMm canvas{picture.Width() * plan.MmPerPixel, picture.Height() * plan.MmPerPixel};
    plan.Pages = PlanPages(canvas, ChoicesFor(settings.Sheet, state.PaintCount),
                           [&plan](const PagePlan& pages) {
                               return HoldsItsLists(pages, plan.Regions, plan.MmPerPixel);
                           });
    if (settings.CanvasCm == 0) {
        const double growth = Growth(plan.Pages);
        plan.Pages = Enlarged(plan.Pages, growth);
        plan.MmPerPixel *= growth;
    }
}

// The first whole pixel of every page behind the first one of a row.
std::vector<int> CutsInPixels(double canvasMm, int shares, double mmPerPixel) {
    std::vector<int> cuts;
    for (int i = 1; i < shares; ++i) {
        cuts.push_back(static_cast<int>(std::ceil(canvasMm * i / shares / mmPerPixel)));
    }
    return cuts;
}

}  // namespace

int PlanPageDesign::LegendColumns(double paperWidth) {
    return static_cast<int>((paperWidth - 2 * kMargin) / kLegendColumn);
}

double PlanPageDesign::LegendHeight(double paperWidth, int paints) {
    const int columns = LegendColumns(paperWidth);
    const int rows = (paints + columns - 1) / columns;
    return rows * kLegendRow;
}

PrintPlan MakePrintPlan(const Workplace& place, const PlanSettings& settings,
                        const SymbolAspects& aspects) {
    const WorkState& state = place.State;
    const Surface& picture = place.Frames.WorkFrame.Picture;
    RequireSymbols(state);
    PrintPlan plan;
    plan.Regions = FindRegions(PaintPerPixel(state, picture.Width(), picture.Height()),
                               SmallestStipple(state.StippleSize));
    plan.Lines = TraceOutlines(plan.Regions.Ids);
    plan.MmPerPixel = settings.CanvasCm > 0 ? ScaleOf(settings, picture)
                                            : LegibleScale(state, plan.Regions, aspects);
    LayOutPages(plan, settings, state, picture);
    LabelRules rules;
    rules.Aspects = aspects;
    rules.LegibleHeight = kNibbled * kLegibleSymbolMm / plan.MmPerPixel;
    rules.LargestHeight = kLargestSymbolMm / plan.MmPerPixel;
    rules.LatticeStep = kLatticeMm / plan.MmPerPixel;
    rules.PageColumns = CutsInPixels(plan.Pages.Canvas.Width, plan.Pages.Across, plan.MmPerPixel);
    rules.PageRows = CutsInPixels(plan.Pages.Canvas.Height, plan.Pages.Down, plan.MmPerPixel);
    plan.Labels = PlaceLabels(plan.Regions, rules);
    return plan;
}

}  // namespace vendrel
