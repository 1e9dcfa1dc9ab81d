#include "plan/region_pieces.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace vendrel {
namespace {

// For every index on which side of the cuts it lies, 0 before the first.
std::vector<int> SideOfEach(std::span<const int> cuts, int count) {
    std::vector<int> sides(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        sides[static_cast<std::size_t>(i)] =
            static_cast<int>(std::ranges::upper_bound(cuts, i) - cuts.begin());
    }
    return sides;
}

}  // namespace

RegionPieces CutIntoPieces(const PixelGrid& ids, const PixelCuts& cuts) {
    const std::vector<int> column = SideOfEach(cuts.Columns, ids.Across() + 1);
    const std::vector<int> row = SideOfEach(cuts.Rows, ids.Down() + 1);
    const int across = static_cast<int>(cuts.Columns.size()) + 1;
    const int parts = across * (static_cast<int>(cuts.Rows.size()) + 1);
    PixelGrid keys(ids.Across(), ids.Down());
    for (int y = 0; y <= ids.Down(); ++y) {
        for (int x = 0; x <= ids.Across(); ++x) {
            keys(x, y) = ids(x, y) * parts + row[static_cast<std::size_t>(y)] * across +
                         column[static_cast<std::size_t>(x)];
        }
    }
    RegionPieces cut;
    cut.Pieces = FindRegions(std::move(keys), 1);
    for (const Region& piece : cut.Pieces.List) {
        cut.RegionOf.push_back(piece.Paint / parts);
    }
    return cut;
}

}  // namespace vendrel
