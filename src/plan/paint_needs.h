#pragma once

#include <string>
#include <vector>

#include "plan/page_tiling.h"
#include "plan/paint_finder.h"
#include "plan/painted_regions.h"
#include "support/print_scale.h"

namespace vendrel {

/// How a painter lays on paint, and the pots it is bought in.
struct PaintUse {
    int Coats = 2;
    double Cm2PerMl = 60;  // one coat
    double PotMl = 0;      // 0: not asked
    bool operator==(const PaintUse&) const = default;
};

/// Bought beyond what is needed: brushes and lids keep some.
inline constexpr double kToSpare = 0.15;

inline constexpr double kCm2PerSqIn = 6.4516;

/// What one paint of a palette is needed for.
struct PaintNeed {
    int Paint = 0;
    double Cm2 = 0;
    double Ml = 0;
    int Pots = 0;                      // 0 when their size is not known
    std::vector<std::string> Pages{};  // of the plan where it occurs
};

/// What is to be painted.
struct PaintedPages {
    const PaintedRegions& Regions;
    const PaintFinder& Paints;  // in them
    const PagePlan& Pages;
    PrintScale Scale;
};

/// Of every paint of a palette of so many, in its order.
[[nodiscard]] std::vector<PaintNeed> PaintNeeds(const PaintedPages& painted, int paints,
                                                const PaintUse& use);

/// Pots of a size to buy for so much paint; 0 when their size is not known.
[[nodiscard]] int PotsOf(double ml, double potMl);

/// All of them together; no paint and no pages.
[[nodiscard]] PaintNeed SumOf(const std::vector<PaintNeed>& needs);

/// "2 coats at 1 ml for 60 cm², pots of 20 ml with 15 % to spare"; or "for 9.3 sq in".
[[nodiscard]] std::string UseText(const PaintUse& use, bool inches);

}  // namespace vendrel
