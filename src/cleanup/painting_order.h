#pragma once

#include <cstddef>
#include <vector>

#include "shell/records.h"

namespace vendrel {

/// The order in which areas are painted: largest first, equal sizes by area number. Sorted once,
/// so that picking the next area does not search them all.
class PaintingOrder {
  public:
    /// Areas without cells or already painted are left out.
    explicit PaintingOrder(const OneBased<PaintArea>& areas);

    /// Number of the next area and marks it Painted; 0 when none is left.
    [[nodiscard]] int GetBiggestCell(OneBased<PaintArea>& areas);

  private:
    std::vector<int> order_;
    std::size_t next_ = 0;
};

}  // namespace vendrel
