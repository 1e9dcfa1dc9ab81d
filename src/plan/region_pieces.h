#pragma once

#include <span>
#include <vector>

#include "plan/painted_regions.h"

namespace vendrel {

/// Where a picture is cut: the first columns and rows behind each cut, ascending and without 0.
struct PixelCuts {
    std::span<const int> Columns{};
    std::span<const int> Rows{};
};

/// What the cuts leave of the regions: connected pieces, several of one region on one side of a cut
/// if it winds across.
struct RegionPieces {
    PaintedRegions Pieces;      // in their Value nothing of use
    std::vector<int> RegionOf;  // per piece
};

[[nodiscard]] RegionPieces CutIntoPieces(const PixelGrid& ids, const PixelCuts& cuts);

/// The same with necks of a single pixel's width as pieces of their own.
[[nodiscard]] RegionPieces ParedAtNecks(const RegionPieces& whole);

}  // namespace vendrel
