#pragma once

#include <array>
#include <vector>

#include "output/symbol_set.h"
#include "plan/outlines.h"
#include "plan/painted_regions.h"

namespace vendrel {

/// A symbol on the plan, in picture pixels.
struct PlanLabel {
    int Region = 0;
    PlanPoint Centre;
    double Height = 0;  // of its box; the box is Height * the symbol's aspect wide
    bool operator==(const PlanLabel&) const = default;
};

/// How wide each symbol's ink is for its height, by symbol 1..50; entry 0 is not used.
using SymbolAspects = std::array<double, kSymbolCount + 1>;

/// The same by paint: of the symbol that marks it.
using PaintAspects = OneBased<double>;

/// Of a palette of at most kSymbolCount paints.
[[nodiscard]] PaintAspects AspectsOf(const PaintList& palette, const SymbolAspects& aspects);

struct LabelRules {
    PaintAspects Aspects;
    double LargestHeight = 0;  // in pixels: no symbol is taller
    double LegibleHeight = 0;  // in pixels: a repeated symbol as tall as this can be read
    double LatticeStep = 0;    // in pixels: large regions repeat their symbol about this often
    std::vector<int> PageColumns{};  // where pages are cut, first pixel of each; without the 0
    std::vector<int> PageRows{};
};

/// Gives every region one symbol at its roomiest place, as tall as fits inside, beside a page's cut
/// rather than on it; then one in every other piece of it that a page shows, where there is room,
/// and, in large regions, about every LatticeStep. In order of regions.
[[nodiscard]] std::vector<PlanLabel> PlaceLabels(const PaintedRegions& regions,
                                                 const LabelRules& rules);

/// Whether a page draws a label: some of it lies in the page's own share, so that the halves of a
/// symbol on a cut meet, or all of it in what the page shows. Both parts in picture pixels.
[[nodiscard]] bool IsLabelOn(const PlanLabel& label, double aspect, const PlanRect& own,
                             const PlanRect& shown);

/// Heights in pixels of the regions' symbols, each as tall as fits; by region.
[[nodiscard]] std::vector<double> LargestSymbols(const PaintedRegions& regions,
                                                 const PaintAspects& aspects);

/// How tall a symbol of such an aspect fits into a lone stipple of that size, in pixels.
[[nodiscard]] double SymbolHeightInStipple(int stippleSize, double aspect);

}  // namespace vendrel
