#pragma once

#include "shell/records.h"
#include "support/grid.h"

namespace vendrel {

/// The photo as stipples.
struct StippleGrid {
    Grid<StippleCell> Stipples;
    Grid<CellMark> CellMarks;  // the area search's
    int CellsAcross = 0;
    int CellsDown = 0;
    bool StipplesMade = false;
    bool StipplesShown = false;
    int WorkStage = 0;
};

/// Makes `cells` the kit's grid, with marks of its size: the only one that changes CellsAcross and
/// CellsDown.
void SetGrid(StippleGrid& grid, Grid<StippleCell> cells);

/// Stipples of every paint 1..paintCount in columns 1..across of rows 1..down.
[[nodiscard]] OneBased<int> CountStipples(const Grid<StippleCell>& cells, int across, int down,
                                          int paintCount);
/// The same for the whole grid.
[[nodiscard]] OneBased<int> CountStipples(const Grid<StippleCell>& cells, int paintCount);

}  // namespace vendrel
