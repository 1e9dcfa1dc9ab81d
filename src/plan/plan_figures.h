#pragma once

#include <optional>
#include <string>

#include "plan/plan_layout.h"

namespace vendrel {

/// How the areas' symbols come out in print: the tallest of each, in its area or pointing at it.
struct SymbolFigures {
    int Small = 0;                            // of the areas that have none of kLegibleSymbolMm
    double SmallestMm = 0;                    // that the least of them has
    int CanvasThatDoesCm = 0;                 // whole centimeters of width; 0 where none can be
    std::optional<Difficulty> LevelThatDoes;  // on the same canvas, as far as can be told
};

/// What a painter should know of a plan before printing it.
struct PlanFigures {
    SizeMm Canvas;
    SizeMm Picture;       // smaller where the canvas is of another shape
    bool Inches = false;  // what the painter reads
    double Ml = 0;        // of all paints
    double Hours = 0;     // of painting
    int Pages = 0;        // without those in front of the plan
    int Areas = 0;
    std::optional<SymbolFigures> Symbols;  // known once the plan is laid out
};

/// What can be told at once. Throws as LayOutSheets.
[[nodiscard]] PlanFigures FiguresOf(const PlanSketch& sketch, const PlanSettings& settings);
/// All of it; `plan` is what the sketch and the settings make.
[[nodiscard]] PlanFigures FiguresOf(const PlanSketch& sketch, const PlanSettings& settings,
                                    const PrintPlan& plan);

/// "0.8", rounded down: no symbol is smaller.
[[nodiscard]] std::string SmallestText(const SymbolFigures& symbols);

/// A sentence on the symbols that cannot be read well and on what would help; empty when all can,
/// and while nobody knows.
[[nodiscard]] std::string WarningOf(const PlanFigures& figures);

}  // namespace vendrel
