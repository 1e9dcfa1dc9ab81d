#pragma once

#include <span>

#include "shell/records.h"
#include "support/cell_pos.h"
#include "support/grid.h"

namespace vendrel {

/// A stipple that wants what its neighbors have.
struct NeighborWish {
    CellPos At;
    int Paint = 0;  // the one it would like best; 0 for none
};

/// Gives each the paint it likes best when one of its eight neighbors has that, perhaps another
/// wish fulfilled before, else the one that most of its neighbors have, of those alike the lower
/// one. A grid where every stipple has such a wish stays as it is.
void FulfillNeighborWishes(Grid<StippleCell>& cells, std::span<const NeighborWish> wishes);

}  // namespace vendrel
