#include "plan/plan_figures.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "output/kit_figures.h"
#include "support/decimals.h"

namespace vendrel {
namespace {

// What a height reckoned in millimeters may be off.
constexpr double kHairMm = 1e-6;

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

std::vector<double> TallestMm(const PrintPlan& plan) {
    std::vector<double> tallest(plan.Regions.List.size());
    for (const PlanLabel& label : plan.Labels) {
        double& height = tallest[static_cast<std::size_t>(label.Region)];
        height = std::max(height, plan.Scale.Mm(label.Height));
    }
    return tallest;
}

// All symbols in their own areas, on a canvas of whole centimeters.
int CanvasThatDoesCm(const PlanSketch& sketch, double pixelMm) {
    const double width = std::max(pixelMm, LegiblePixelMm(sketch)) * sketch.Width / 10;
    const double whole = std::max(std::ceil(width - kHairMm), kSmallestCanvasCm);
    return whole <= WidestCanvasCm(sketch) ? static_cast<int>(whole) : 0;
}

SymbolFigures FiguresOf(const PlanSketch& sketch, const PrintPlan& plan, bool isChosen) {
    SymbolFigures figures;
    figures.SmallestMm = kLargestSymbolMm;
    for (const double height : TallestMm(plan)) {
        figures.Small += height < kLegibleSymbolMm - kHairMm ? 1 : 0;
        figures.SmallestMm = std::min(figures.SmallestMm, height);
    }
    if (figures.Small > 0) {
        const double pixelMm = plan.Scale.MmPerPixel() * GrowthToLegible(figures.SmallestMm);
        figures.CanvasThatDoesCm = CanvasThatDoesCm(sketch, pixelMm);
        figures.LevelThatDoes = isChosen ? LevelThatDoes(sketch, plan.Scale) : std::nullopt;
    }
    return figures;
}

}  // namespace

PlanFigures FiguresOf(const PlanSketch& sketch, const PlanSettings& settings) {
    const PlanSheets sheets = LayOutSheets(sketch, settings);
    PlanFigures figures;
    figures.Canvas = sheets.Canvas;
    figures.Picture = sheets.Pages.Canvas;
    figures.Inches = settings.InInches();
    const double mm2 = figures.Picture.Width * figures.Picture.Height;
    figures.Ml = mm2 / 100 * settings.Use.Coats / settings.Use.Cm2PerMl;
    figures.Pages = static_cast<int>(sheets.Pages.Tiles.size());
    figures.Areas = sketch.Regions.Count();
    figures.Hours = PaintingHours(figures.Areas, mm2);
    return figures;
}

PlanFigures FiguresOf(const PlanSketch& sketch, const PlanSettings& settings,
                      const PrintPlan& plan) {
    PlanFigures figures = FiguresOf(sketch, settings);
    figures.Symbols = FiguresOf(sketch, plan, settings.HasCanvas());
    return figures;
}

std::string SmallestText(const SymbolFigures& symbols) {
    const int tenths = static_cast<int>(std::floor((symbols.SmallestMm + kHairMm) * 10));
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

std::string WarningOf(const PlanFigures& figures) {
    if (!figures.Symbols || figures.Symbols->Small == 0) {
        return {};
    }
    const SymbolFigures& symbols = *figures.Symbols;
    std::string remedy;
    if (symbols.CanvasThatDoesCm > 0) {
        const double inches = symbols.CanvasThatDoesCm * 10 / kMmPerInch;
        remedy =
            "a canvas of " + (figures.Inches ? Decimals(std::ceil(inches * 2) / 2, 1) + " in"
                                             : std::to_string(symbols.CanvasThatDoesCm) + " cm");
    }
    if (symbols.LevelThatDoes) {
        remedy += (remedy.empty() ? "" : " or ") +
                  std::string(TraitsOf(*symbols.LevelThatDoes).Option) + " difficulty";
    }
    return Grouped(symbols.Small) + " of " + Grouped(figures.Areas) + " areas " +
           (symbols.Small == 1 ? "has" : "have") +
           " no room for a symbol of 2 mm, the smallest for one of " + SmallestText(symbols) +
           " mm" + (remedy.empty() ? "." : "; " + remedy + " gives them 2 mm or more.");
}

}  // namespace vendrel
