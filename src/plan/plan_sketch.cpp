#include "plan/plan_sketch.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "output/cell_numbering.h"
#include "regions/crumbs.h"
#include "support/error.h"

namespace vendrel {
namespace {

// A canvas has a round width where nothing speaks against it.
constexpr double kRoundMm = 5;
// The share of a stipple's symbol that is left where its neighbours nibbled at it.
constexpr double kNibbled = 0.75;

void RequireCanvas(const SizeMm& canvas, double shortest) {
    if (shortest / 10 < kSmallestCanvasCm ||
        std::max(canvas.Width, canvas.Height) / 10 > kLargestCanvasCm) {
        throw Error("A canvas of " + std::to_string(std::lround(canvas.Width / 10)) + " x " +
                    std::to_string(std::lround(canvas.Height / 10)) +
                    " cm cannot be printed. Choose a width of 10 cm or more, and no side longer "
                    "than 300 cm.");
    }
}

// So large that every symbol can be read. A stipple that its neighbours nibbled at may take a
// somewhat smaller one: a single odd shape shall not blow up the whole canvas.
PrintScale LegibleScale(const PlanSketch& sketch) {
    return PrintScale::OfPixel(
        std::min(LegiblePixelMm(sketch), sketch.InStipple.Times(kNibbled).LegiblePixelMm()));
}

PrintScale ScaleOf(const PlanSketch& sketch, const PlanSettings& settings) {
    const SizeMm& canvas = settings.Canvas;
    if (canvas.Width > 0) {
        RequireCanvas(canvas, std::min(canvas.Width, canvas.Height));
        return PrintScale::OfPixel(FittedPixelMm(canvas, sketch.Width, sketch.Height));
    }
    const double width = settings.CanvasCm * 10;
    RequireCanvas({width, width * sketch.Height / sketch.Width}, width);
    return PrintScale::OfCanvas(settings.CanvasCm, sketch.Width);
}

// The sheet upright and lying, with the list below the picture, or beside it in a wide column or
// two narrow ones.
std::vector<PaperChoice> ChoicesFor(const Paper& paper) {
    using Design = PlanPageDesign;
    const PageFrame frame{Design::kMargin + Design::kMarks,
                          Design::kMargin + Design::kHeading + Design::kMarks,
                          Design::kMargin + Design::kMarks};
    std::vector<PaperChoice> choices;
    for (const SizeMm sheet : {paper.Size, SizeMm{paper.Size.Height, paper.Size.Width}}) {
        const double below = sheet.Width - Design::kLeft - Design::kMargin;
        choices.push_back({sheet, frame, std::max(1, int(below / Design::kLegendColumn)), 0});
        choices.push_back({sheet, frame, 1, Design::kLegendColumn});
        choices.push_back({sheet, frame, 2, 2 * Design::kNarrowColumn});
    }
    return choices;
}

SizeMm PictureAt(const PlanSketch& sketch, PrintScale scale) {
    return {scale.Mm(sketch.Width), scale.Mm(sketch.Height)};
}

// Paper that is printed anyway may as well carry larger symbols.
double Growth(const PagePlan& pages) {
    const double largest = std::min(RoomToGrow(pages), kLargestSymbolMm / kLegibleSymbolMm);
    const double width = std::floor(pages.Canvas.Width * largest / kRoundMm) * kRoundMm;
    return std::max(1.0, width / pages.Canvas.Width);
}

PagePlan PagesAt(const PlanSketch& sketch, PrintScale scale, const Paper& sheet) {
    const auto listHeight = [&sketch, scale](const PaperChoice& paper, const PlanRect& own) {
        const auto paints = sketch.Paints.Within(InPixels(own, scale));
        return PlanPageDesign::LegendHeight(paper, static_cast<int>(paints.size()));
    };
    return PlanPages({PictureAt(sketch, scale),
                      // Pixel 0 is before the first stipple.
                      {scale.MmPerPixel(), scale.MmPerStipple(sketch.StippleSize)},
                      listHeight},
                     ChoicesFor(sheet));
}

// With the margins of a canvas that is of another shape.
PlanSheets OnCanvas(PlanSheets sheets, const PlanSettings& settings) {
    const SizeMm& picture = sheets.Pages.Canvas;
    sheets.Canvas = settings.Canvas.Width > 0 ? settings.Canvas : picture;
    sheets.PictureAt = {(sheets.Canvas.Width - picture.Width) / 2,
                        (sheets.Canvas.Height - picture.Height) / 2};
    return sheets;
}

PrintScale OfRoundWidth(const PlanSketch& sketch, PrintScale scale) {
    const double width = std::ceil(scale.Mm(sketch.Width) / kRoundMm) * kRoundMm;
    return PrintScale::OfCanvas(width / 10, sketch.Width);
}

// The whole canvas as it is printed for a frame.
PlanSheets OnOneSheet(const PlanSketch& sketch, PrintScale scale, const PlanSettings& settings) {
    const SizeMm picture = PictureAt(sketch, scale);
    const PlanRect all{0, 0, picture.Width, picture.Height};
    PagePlan pages{{}, picture, 1, 1, {{0, 0, all, all, 0}}};
    PlanSheets sheets = OnCanvas({std::move(pages), scale, {}, {}}, settings);
    const double around = 2 * (settings.BleedMm + PlanPageDesign::kWholeCanvasEdge);
    sheets.Pages.Paper.Sheet = {sheets.Canvas.Width + around, sheets.Canvas.Height + around};
    return sheets;
}

}  // namespace

bool HasSmoothLines(const PlanSettings& settings, const StippleGrid& grid) {
    return settings.Lines == LineShape::Smooth ||
           (settings.Lines == LineShape::ByKit && grid.PaintableKit);
}

SymbolRoom LeastRoomInStipple(int stippleSize, const PaintAspects& aspects) {
    SymbolRoom least{static_cast<double>(stippleSize), static_cast<double>(stippleSize), 0};
    for (const double aspect : aspects) {
        const SymbolRoom room = RoomInStipple(stippleSize, aspect);
        least = room.LegiblePixelMm() > least.LegiblePixelMm() ? room : least;
    }
    return least;
}

double LegiblePixelMm(const PlanSketch& sketch) {
    return std::ranges::max_element(sketch.Rooms, {}, &SymbolRoom::LegiblePixelMm)
        ->LegiblePixelMm();
}

PlanRect InPixels(const PlanRect& part, PrintScale scale) {
    return {scale.Pixels(part.Left), scale.Pixels(part.Top), scale.Pixels(part.Right),
            scale.Pixels(part.Bottom)};
}

double PlanPageDesign::ListWidth(const PaperChoice& paper) {
    return paper.Beside > 0 ? paper.Beside : paper.Sheet.Width - kLeft - kMargin;
}

int PlanPageDesign::LegendRows(const PaperChoice& paper, int paints) {
    return (paints + paper.ListColumns - 1) / paper.ListColumns;
}

double PlanPageDesign::LegendHeight(const PaperChoice& paper, int paints) {
    return LegendRows(paper, paints) * kLegendRow + (paper.Beside > 0 ? kLegendTitle : 0);
}

PlanSketch SketchPlan(const WorkState& state, const Surface& picture,
                      const SymbolAspects& aspects) {
    RequireSymbols(state);
    PlanSketch sketch;
    sketch.Width = picture.Width();
    sketch.Height = picture.Height();
    sketch.StippleSize = state.StippleSize;
    sketch.Aspects = AspectsOf(state.PaintColors, aspects);
    // The areas of a paintable kit have joined their crumbs before they were painted.
    sketch.Regions = FindRegionsWithoutCrumbs(
        PaintPerPixel(state, state, sketch.StippleSize, sketch.Width, sketch.Height),
        state.PaintableKit ? 0 : TraitsOf(state.Chosen.Level).FewestOwnPixels);
    sketch.Paints = PaintFinder(sketch.Regions);
    const auto aspectOf = [&](int region) { return sketch.Aspects[sketch.Regions[region].Value]; };
    sketch.Boxes = FindRoomiestBoxes(sketch.Regions, aspectOf);
    for (const InscribedBox& box : sketch.Boxes) {
        sketch.Rooms.push_back(RoomIn(box, aspectOf(box.Region)));
    }
    sketch.InStipple = LeastRoomInStipple(sketch.StippleSize, sketch.Aspects);
    return sketch;
}

PlanSheets LayOutSheets(const PlanSketch& sketch, const PlanSettings& settings) {
    const bool chosen = settings.HasCanvas();
    const PrintScale scale = chosen ? ScaleOf(sketch, settings) : LegibleScale(sketch);
    if (settings.Sheet.IsCanvas()) {
        return OnOneSheet(sketch, chosen ? scale : OfRoundWidth(sketch, scale), settings);
    }
    const PagePlan pages = PagesAt(sketch, scale, settings.Sheet);
    const double growth = chosen ? 1 : Growth(pages);
    return OnCanvas({Enlarged(pages, growth), scale.Enlarged(growth), {}, {}}, settings);
}

double WidestCanvasCm(const PlanSketch& sketch) {
    return std::floor(kLargestCanvasCm * std::min(1.0, double(sketch.Width) / sketch.Height));
}

}  // namespace vendrel
