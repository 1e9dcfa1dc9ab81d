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
    bool PaintableKit = false;  // what the brush leaves of corners joins a neighbor
    ValueGrid Protected;  // per stipple from 0, other than 0 where limits are a third; or empty
    double SeenPerStipple = 0;  // of a paintable kit: mean seen difference of stipple and paint
};

/// Makes `cells` the kit's grid, with marks of its size: the only one that changes CellsAcross and
/// CellsDown.
void SetGrid(StippleGrid& grid, Grid<StippleCell> cells);

/// The paint of every stipple, both from 0.
[[nodiscard]] ValueGrid PaintsOf(const StippleGrid& grid);

/// Whether both are of one size and show the same. Painting deals the area numbers out anew, so
/// they may differ.
[[nodiscard]] bool SameStipples(const Grid<StippleCell>& a, const Grid<StippleCell>& b);

/// Stipples of every paint 1..paintCount in columns 1..across of rows 1..down.
[[nodiscard]] OneBased<int> CountStipples(const Grid<StippleCell>& cells, int across, int down,
                                          int paintCount);
/// The same for the whole grid.
[[nodiscard]] OneBased<int> CountStipples(const Grid<StippleCell>& cells, int paintCount);

}  // namespace vendrel
