#pragma once

#include <functional>
#include <vector>

#include "plan/painted_regions.h"

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

/// The roomiest box of every region, by region. `aspectOf` says how wide a region's symbol is for
/// its height; several threads ask it.
[[nodiscard]] std::vector<InscribedBox> FindRoomiestBoxes(
    const PaintedRegions& regions, const std::function<double(int)>& aspectOf);

}  // namespace vendrel
