#pragma once

#include "shell/stipple_grid.h"
#include "shell/work_settings.h"
#include "support/twips.h"

namespace vendrel {

/// Finds the stipple whose centre is nearest to a picture position. The columns and rows are
/// searched as a grid is walked, row by row; of stipples equally near the later one is found.
class StippleFinder {
  public:
    /// Keeps references: the grid must not change meanwhile.
    StippleFinder(const StippleGrid& grid, const WorkSettings& settings, TwipsPerPixel twips);

    /// Column and row of the grid; (0, 0) when there is no stipple.
    [[nodiscard]] CellPos NearestCell(CellPos pixel) const;

    /// The picture position, left of and above the found stipple's centre, that puts a symbol into
    /// the middle of the stipple's block on the sheet.
    [[nodiscard]] CellPos SymbolPlace(CellPos cell) const;

  private:
    [[nodiscard]] bool IsRegular() const;
    [[nodiscard]] CellPos Search(CellPos pixel) const;

    const StippleGrid& grid_;
    const WorkSettings& settings_;
    CellPos reach_;  // how far away a stipple may lie
    bool regular_;
};

/// The place of the symbol that marks picture position `pixel`.
[[nodiscard]] CellPos FindNearestStipple(const StippleGrid& grid, const WorkSettings& settings,
                                         TwipsPerPixel twips, CellPos pixel);

}  // namespace vendrel
