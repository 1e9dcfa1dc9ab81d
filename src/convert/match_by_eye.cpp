#include "convert/match_by_eye.h"

#include <cstddef>
#include <set>

#include "eye/palette_by_eye.h"
#include "eye/seen_table.h"

namespace vendrel {
namespace {

int CountNearest(const SeenTable& table) {
    std::set<int> nearest;
    for (int color = 0; color < table.ColorCount(); ++color) {
        nearest.insert(table.NearestTo(color));
    }
    return static_cast<int>(nearest.size());
}

std::vector<int> MatchAll(const SeenStipples& seen) {
    std::vector<int> nearest(seen.Distinct.Colors.size());
    for (std::size_t c = 0; c < nearest.size(); ++c) {
        nearest[c] = 1 + seen.Table.NearestTo(static_cast<int>(c));
    }
    std::vector<int> paints;
    paints.reserve(seen.Distinct.IndexOf.size());
    for (const int color : seen.Distinct.IndexOf) {
        paints.push_back(nearest[static_cast<std::size_t>(color)]);
    }
    return paints;
}

}  // namespace

EyeMatch MatchByEye(std::span<const Color> stipples, const PaintList& allowed, int count,
                    const BuyTerms& terms) {
    EyeMatch match;
    const ColorBins bins = BinColors(stipples);
    const SeenTable table(bins.Colors, ColorsOf(allowed));
    for (const int paint : ChoosePaintsByEye(table, bins.Stipples, count, terms)) {
        match.Palette.Add(allowed[paint + 1]);
    }
    match.Considered = CountNearest(table);
    match.Seen = LookAt(stipples, match.Palette);
    match.Paints = MatchAll(match.Seen);
    return match;
}

}  // namespace vendrel
