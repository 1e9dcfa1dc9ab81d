#pragma once

#include <span>
#include <vector>

#include "eye/seen_table.h"

namespace vendrel {

/// Stipples of about the same color, taken together.
struct ColorBins {
    std::vector<Color> Colors;  // the mean of each bin
    std::vector<int> Stipples;  // per bin
};

/// Sorts stipples into bins of eight levels a channel: enough to choose paints by.
[[nodiscard]] ColorBins BinColors(std::span<const Color> stipples);

/// A paint that fewer stipples need is not worth a pot.
inline constexpr int kHandfulOfStipples = 5;

/// What paints have to be bought, and when that is worth it.
struct BuyTerms {
    std::vector<bool> IsOwned;  // by paint; empty: all alike
    double Worth = 0;           // a paint is bought where the mean seen difference falls by more
    int MostToBuy = 0;
};

/// At most `count` paints of a table, ascending, that together leave a small sum of seen
/// differences over all stipples: first the paint that helps most, again and again, then exchanges
/// until none helps. `stipples`: how many there are per color of the table. Leaves out paints that
/// less than a handful of stipples need; one paint stays however few they are. A table without
/// paints or a count of 0 gives none. Of paints that are not owned each that is taken is worth what
/// `terms` ask for: without it, and with what the others make of its stipples, the mean would be
/// higher by more.
[[nodiscard]] std::vector<int> ChoosePaintsByEye(const SeenTable& table,
                                                 std::span<const int> stipples, int count,
                                                 const BuyTerms& terms = {});

}  // namespace vendrel
