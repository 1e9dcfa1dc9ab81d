#pragma once

#include <functional>
#include <span>
#include <vector>

#include "output/painted_regions.h"

namespace vendrel {

/// A box of whole pixels inside one region, and the tallest symbol that fits it.
struct InscribedBox {
    int Region = 0;
    int Left = 0;
    int Top = 0;
    int Right = 0;  // one past the last column
    int Bottom = 0;
    double Height = 0;  // of the tallest symbol, in pixels
};

/// Where regions are cut into pieces: the first columns and rows of the pieces, ascending and
/// without the 0.
struct PixelCuts {
    std::span<const int> Columns{};
    std::span<const int> Rows{};
};

/// The roomiest box of every piece of a region, by region and then in reading order of the pieces.
/// `aspectOf` says how wide a region's symbol is for its height.
[[nodiscard]] std::vector<InscribedBox> FindRoomiestBoxes(
    const PixelGrid& ids, const PixelCuts& cuts, const std::function<double(int)>& aspectOf);

}  // namespace vendrel
