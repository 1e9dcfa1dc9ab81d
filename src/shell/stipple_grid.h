#pragma once

#include "shell/work_state.h"

namespace vendrel {

/// Makes `cells` the kit's grid, with marks of its size: the only one that changes CellsAcross and
/// CellsDown.
void SetGrid(WorkState& state, Grid<StippleCell> cells);

/// Stipples of every paint 1..paintCount in columns 1..across of rows 1..down.
[[nodiscard]] OneBased<int> CountStipples(const Grid<StippleCell>& cells, int across, int down,
                                          int paintCount);
/// The same for the whole grid.
[[nodiscard]] OneBased<int> CountStipples(const Grid<StippleCell>& cells, int paintCount);

}  // namespace vendrel
