#include "plan/plan_sketch.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "output/cell_numbering.h"
#include "output/kit_figures.h"
#include "regions/crumbs.h"
#include "support/decimals.h"
#include "support/error.h"

namespace vendrel {
namespace {

// A canvas has a round width where nothing speaks against it.
constexpr double kRoundMm = 5;
// The share of a stipple's symbol that is left where its neighbours nibbled at it.
constexpr double kNibbled = 0.75;
// What a height reckoned in millimeters may be off.
constexpr double kHairMm = 1e-6;

void RequireCanvas(const SizeMm& canvas, double shortest) {
    if (shortest / 10 < kSmallestCanvasCm ||
        std::max(canvas.Width, canvas.Height) / 10 > kLargestCanvasCm) {
        throw Error("A canvas of " + std::to_string(std::lround(canvas.Width / 10)) + " x " +
                    std::to_string(std::lround(canvas.Height / 10)) +
                    " cm cannot be printed. Choose a width of 10 cm or more, and no side longer "
                    "than 300 cm.");
    }
}

SymbolRoom LeastRoomInStipple(int stippleSize, const PaintAspects& aspects) {
    SymbolRoom least{static_cast<double>(stippleSize), static_cast<double>(stippleSize), 0};
    for (const double aspect : aspects) {
        const SymbolRoom room = RoomInStipple(stippleSize, aspect);
        least = room.LegiblePixelMm() > least.LegiblePixelMm() ? room : least;
    }
    return least;
}

// How wide a pixel makes every symbol legible, in millimeters.
double LegiblePixelMm(const PlanSketch& sketch) {
    return std::ranges::max_element(sketch.Rooms, {}, &SymbolRoom::LegiblePixelMm)
        ->LegiblePixelMm();
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
        const auto paints = PaintsWithin(sketch.Regions, InPixels(own, scale));
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

int CanvasThatDoesCm(const PlanSketch& sketch) {
    const double width = LegiblePixelMm(sketch) * sketch.Width / 10;
    const double whole = std::max(std::ceil(width - kHairMm), kSmallestCanvasCm);
    return whole <= WidestCanvasCm(sketch) ? static_cast<int>(whole) : 0;
}

// What the brush leaves of a stipple's symbol where the neighbours nibble most: it stamps a stipple
// again before less is left. Of photos of all kinds.
double KeptShare(Difficulty level) {
    return level == Difficulty::Easy ? 0.83 : level == Difficulty::Medium ? 0.71 : 1;
}

std::optional<Difficulty> LevelThatDoes(const PlanSketch& sketch, PrintScale scale) {
    for (auto level = kDifficulties.rbegin(); level != kDifficulties.rend(); ++level) {
        if (level->StippleSize > sketch.StippleSize &&
            LeastRoomInStipple(level->StippleSize, sketch.Aspects)
                    .Times(KeptShare(level->Level))
                    .SymbolMm(scale) >= kLegibleSymbolMm - kHairMm) {
            return level->Level;
        }
    }
    return std::nullopt;
}

// "3,120"
std::string Grouped(int number) {
    std::string text = std::to_string(number);
    for (std::size_t at = text.size(); at > 3;) {
        at -= 3;
        text.insert(at, 1, ',');
    }
    return text;
}

}  // namespace

bool HasSmoothLines(const PlanSettings& settings, const StippleGrid& grid) {
    return settings.Lines == LineShape::Smooth ||
           (settings.Lines == LineShape::ByKit && grid.PaintableKit);
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
    sketch.Rooms = FindSymbolRooms(sketch.Regions, sketch.Aspects);
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

PlanFigures FiguresOf(const PlanSketch& sketch, const PlanSettings& settings) {
    const PlanSheets sheets = LayOutSheets(sketch, settings);
    PlanFigures figures;
    figures.Canvas = sheets.Canvas;
    figures.Picture = sheets.Pages.Canvas;
    figures.Inches = settings.InInches();
    figures.Ml = figures.Picture.Width * figures.Picture.Height / 100 * settings.Use.Coats /
                 settings.Use.Cm2PerMl;
    figures.Pages = static_cast<int>(sheets.Pages.Tiles.size());
    figures.Symbols = static_cast<int>(sketch.Rooms.size());
    figures.Hours = PaintingHours(figures.Symbols, figures.Picture.Width * figures.Picture.Height);
    figures.SmallestMm = kLargestSymbolMm;
    for (const SymbolRoom& room : sketch.Rooms) {
        const double height = room.SymbolMm(sheets.Scale);
        figures.Small += height < kLegibleSymbolMm - kHairMm ? 1 : 0;
        figures.SmallestMm = std::min(figures.SmallestMm, height);
    }
    if (figures.Small > 0) {
        figures.CanvasThatDoesCm = CanvasThatDoesCm(sketch);
        figures.LevelThatDoes =
            settings.HasCanvas() ? LevelThatDoes(sketch, sheets.Scale) : std::nullopt;
    }
    return figures;
}

std::string SmallestText(const PlanFigures& figures) {
    const int tenths = static_cast<int>(std::floor((figures.SmallestMm + kHairMm) * 10));
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

std::string WarningOf(const PlanFigures& figures) {
    if (figures.Small == 0) {
        return {};
    }
    std::string remedy;
    if (figures.CanvasThatDoesCm > 0) {
        const double inches = figures.CanvasThatDoesCm * 10 / kMmPerInch;
        remedy =
            "a canvas of " + (figures.Inches ? Decimals(std::ceil(inches * 2) / 2, 1) + " in"
                                             : std::to_string(figures.CanvasThatDoesCm) + " cm");
    }
    if (figures.LevelThatDoes) {
        remedy += (remedy.empty() ? "" : " or ") +
                  std::string(TraitsOf(*figures.LevelThatDoes).Option) + " difficulty";
    }
    return Grouped(figures.Small) + " of " + Grouped(figures.Symbols) + " areas " +
           (figures.Small == 1 ? "has" : "have") +
           " no room for a symbol of 2 mm, the smallest for one of " + SmallestText(figures) +
           " mm" + (remedy.empty() ? "." : "; " + remedy + " gives them 2 mm or more.");
}

}  // namespace vendrel
