#pragma once

#include "support/cell_pos.h"

namespace vendrel {

/// Whether the area search may step from a cell to the neighbour `to`. A step that raises the
/// column never enters the last column and one that raises the row never enters the last row; a
/// coordinate that the step leaves alone is not tested.
[[nodiscard]] inline bool SearchMayStep(CellPos step, CellPos to, int across, int down) {
    return (step.X <= 0 || to.X < across) && (step.X >= 0 || to.X > 0) &&
           (step.Y <= 0 || to.Y < down) && (step.Y >= 0 || to.Y > 0);
}

/// Whether the brush may be dragged to the neighbour `to`: unlike the search it reaches the last
/// column, but not the last row.
[[nodiscard]] inline bool BrushMaySweep(CellPos step, CellPos to, int across, int down) {
    return (step.X <= 0 || to.X <= across) && (step.X >= 0 || to.X > 0) &&
           (step.Y <= 0 || to.Y < down) && (step.Y >= 0 || to.Y > 0);
}

}  // namespace vendrel
