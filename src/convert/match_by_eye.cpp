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

std::vector<int> MatchAll(std::span<const Color> stipples, const PaintList& palette) {
    const DistinctColors distinct = FindDistinctColors(stipples);
    const SeenTable table(distinct.Colors, ColorsOf(palette));
    std::vector<int> nearest(distinct.Colors.size());
    for (std::size_t c = 0; c < nearest.size(); ++c) {
        nearest[c] = 1 + table.NearestTo(static_cast<int>(c));
    }
    std::vector<int> paints;
    paints.reserve(stipples.size());
    for (const int color : distinct.IndexOf) {
        paints.push_back(nearest[static_cast<std::size_t>(color)]);
    }
    return paints;
}

}  // namespace

std::vector<Color> ColorsOf(const PaintList& paints) {
    std::vector<Color> colors;
    colors.reserve(paints.Entries().size());
    for (const PaintColor& paint : paints) {
        colors.push_back(ColorOf(paint));
    }
    return colors;
}

EyeMatch MatchByEye(std::span<const Color> stipples, const PaintList& allowed, int count) {
    EyeMatch match;
    const ColorBins bins = BinColors(stipples);
    const SeenTable table(bins.Colors, ColorsOf(allowed));
    for (const int paint : ChoosePaintsByEye(table, bins.Stipples, count)) {
        match.Palette.Add(allowed[paint + 1]);
    }
    match.Considered = CountNearest(table);
    match.Paints = MatchAll(stipples, match.Palette);
    return match;
}

}  // namespace vendrel
