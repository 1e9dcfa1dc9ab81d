#include "plan/region_pieces.h"

#include <algorithm>
#include <cstddef>

#include "support/list.h"

namespace vendrel {
namespace {

// For every index on which side of the cuts it lies, 0 before the first.
std::vector<int> SideOfEach(std::span<const int> cuts, int count) {
    std::vector<int> sides(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        At(sides, i) = static_cast<int>(std::ranges::upper_bound(cuts, i) - cuts.begin());
    }
    return sides;
}

// Whether a pixel belongs to a square of four of its piece.
bool IsBroad(const PixelGrid& ids, int x, int y) {
    const auto isSame = [&](int i, int j) { return ids.Holds(i, j) && ids(i, j) == ids(x, y); };
    const bool left = isSame(x - 1, y);
    const bool right = isSame(x + 1, y);
    const bool above = isSame(x, y - 1);
    const bool below = isSame(x, y + 1);
    return (above && left && isSame(x - 1, y - 1)) || (above && right && isSame(x + 1, y - 1)) ||
           (below && left && isSame(x - 1, y + 1)) || (below && right && isSame(x + 1, y + 1));
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
            keys(x, y) = ids(x, y) * parts + At(row, y) * across + At(column, x);
        }
    }
    RegionPieces cut;
    cut.Pieces = FindRegions(keys);
    for (const Region& piece : cut.Pieces.List) {
        cut.RegionOf.push_back(piece.Value / parts);
    }
    return cut;
}

RegionPieces ParedAtNecks(const RegionPieces& whole) {
    const PixelGrid& ids = whole.Pieces.Ids;
    PixelGrid keys(ids.Across(), ids.Down());
    for (int y = 0; y <= ids.Down(); ++y) {
        for (int x = 0; x <= ids.Across(); ++x) {
            keys(x, y) = ids(x, y) * 2 + (IsBroad(ids, x, y) ? 1 : 0);
        }
    }
    RegionPieces pared;
    pared.Pieces = FindRegions(keys);
    for (const Region& piece : pared.Pieces.List) {
        pared.RegionOf.push_back(At(whole.RegionOf, piece.Value / 2));
    }
    return pared;
}

}  // namespace vendrel
