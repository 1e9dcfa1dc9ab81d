#pragma once

#include <vector>

#include "shell/workplace.h"
#include "support/cell_pos.h"
#include "support/surface.h"

namespace vendrel {

/// The stipples in their paints, one pixel each.
[[nodiscard]] Surface SmallPicture(const WorkState& state);

/// Every stipple of one paint, row-major.
[[nodiscard]] std::vector<CellPos> StipplesPaintedWith(const StippleGrid& grid, int paint);

/// Whether the kit stands on its canvas, not only in its stipples.
[[nodiscard]] bool IsPainted(const Workplace& place);

}  // namespace vendrel
