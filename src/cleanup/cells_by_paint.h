#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "shell/records.h"
#include "support/grid.h"

namespace vendrel {

/// The cells of each paint in row-major order, found in one walk over the grid, so that work paint
/// by paint need not scan the grid for every paint.
class CellsByPaint {
  public:
    /// Paints 0..paintCount; every cell's paint must lie in that range.
    CellsByPaint(const Grid<StippleCell>& stipples, int paintCount);

    [[nodiscard]] std::span<const CellPos> Of(int colorIndex) const {
        const auto paint = static_cast<std::size_t>(colorIndex);
        return std::span(cells_).subspan(starts_[paint], starts_[paint + 1] - starts_[paint]);
    }
    [[nodiscard]] int CellCount() const { return static_cast<int>(cells_.size()); }

  private:
    std::vector<std::size_t> starts_;
    std::vector<CellPos> cells_;
};

}  // namespace vendrel
