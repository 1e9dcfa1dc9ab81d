#pragma once

#include <cassert>
#include <cstddef>
#include <span>
#include <vector>

#include "support/row_view.h"

namespace vendrel {

/// Columns 0..Across, rows 0..Down, row-major. Column 0 and row 0 exist and stay empty: data
/// stands at (1, 1) to (Across, Down).
template <class T>
class Grid {
  public:
    Grid() = default;
    Grid(int across, int down)
        : across_(across),
          down_(down),
          cells_((static_cast<std::size_t>(across) + 1) * (static_cast<std::size_t>(down) + 1)) {}

    [[nodiscard]] int Across() const { return across_; }
    [[nodiscard]] int Down() const { return down_; }
    [[nodiscard]] bool Holds(int x, int y) const {
        return !cells_.empty() && x >= 0 && y >= 0 && x <= across_ && y <= down_;
    }

    // Unchecked in release, as rows are: this is where the kernels spend their time.
    [[nodiscard]] T& operator()(int x, int y) { return cells_.data()[At(x, y)]; }
    [[nodiscard]] const T& operator()(int x, int y) const { return cells_.data()[At(x, y)]; }

    /// Row y from column 0 to column Across.
    [[nodiscard]] RowView<T> Row(int y) { return {cells_.data() + At(0, y), across_ + 1}; }
    [[nodiscard]] RowView<const T> Row(int y) const {
        return {cells_.data() + At(0, y), across_ + 1};
    }
    /// From a cell to the one below it.
    [[nodiscard]] std::ptrdiff_t Stride() const { return across_ + 1; }
    /// Every cell, row 0 and column 0 included.
    [[nodiscard]] std::span<T> All() { return cells_; }
    [[nodiscard]] std::span<const T> All() const { return cells_; }

    bool operator==(const Grid&) const = default;

  private:
    [[nodiscard]] std::size_t At(int x, int y) const {
        assert(Holds(x, y));
        return static_cast<std::size_t>(y) * (static_cast<std::size_t>(across_) + 1) +
               static_cast<std::size_t>(x);
    }

    int across_ = 0;
    int down_ = 0;
    std::vector<T> cells_;
};

/// One value per place, be it a pixel or a stipple: columns 0..Across and rows 0..Down are all in
/// use.
using ValueGrid = Grid<int>;

}  // namespace vendrel
