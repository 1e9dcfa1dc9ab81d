#pragma once

#include <cstdint>
#include <vector>

#include "support/grid.h"
#include "touchup/cell_rect.h"

namespace vendrel {

/// Some of the stipples of a sheet: a selection.
class CellSet {
  public:
    CellSet() = default;
    CellSet(int across, int down) : has_(across, down) {}

    [[nodiscard]] int Across() const { return has_.Across(); }
    [[nodiscard]] int Down() const { return has_.Down(); }
    [[nodiscard]] bool Has(CellPos at) const {
        return at.X >= 1 && at.Y >= 1 && has_.Holds(at.X, at.Y) && has_(at.X, at.Y) != 0;
    }
    /// Stipples outside the sheet are left out.
    void Add(CellPos at) { Put(at, 1); }
    void Remove(CellPos at) { Put(at, 0); }
    [[nodiscard]] int Count() const { return count_; }
    [[nodiscard]] bool Empty() const { return count_ == 0; }
    [[nodiscard]] CellRect Bounds() const;
    /// Row-major.
    [[nodiscard]] std::vector<CellPos> Cells() const;

    bool operator==(const CellSet&) const = default;

  private:
    void Put(CellPos at, std::uint8_t has) {
        if (at.X >= 1 && at.Y >= 1 && has_.Holds(at.X, at.Y)) {
            count_ += has - has_(at.X, at.Y);
            has_(at.X, at.Y) = has;
        }
    }

    Grid<std::uint8_t> has_;
    int count_ = 0;
};

/// How a new choice goes together with what is selected already.
enum class Joining { Instead, Add, Subtract };

[[nodiscard]] CellSet Join(CellSet selected, const CellSet& chosen, Joining how);
/// All others of the sheet.
[[nodiscard]] CellSet Inverted(const CellSet& cells);
/// With the stipples that touch it by sides or corners.
[[nodiscard]] CellSet Grown(const CellSet& cells);
/// Without the stipples that touch others of the sheet by sides or corners.
[[nodiscard]] CellSet Shrunk(const CellSet& cells);
/// Moved; what leaves the sheet is left out.
[[nodiscard]] CellSet Shifted(const CellSet& cells, CellPos by);

}  // namespace vendrel
