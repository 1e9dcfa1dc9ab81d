#pragma once

#include <array>

#include "support/cell_pos.h"

namespace vendrel {

/// The eight steps to a cell's neighbours, directions 1 to 8: clockwise from the upper left, row
/// numbers growing downwards.
inline constexpr std::array<CellPos, 8> kNeighbours = {
    {{-1, -1}, {0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}}};

}  // namespace vendrel
