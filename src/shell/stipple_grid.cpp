#include "shell/stipple_grid.h"

#include <utility>

namespace vendrel {

void SetGrid(WorkState& state, Grid<StippleCell> cells) {
    state.Stipples = std::move(cells);
    state.CellsAcross = state.Stipples.Across();
    state.CellsDown = state.Stipples.Down();
    state.PaintableKit = false;
    state.CellMarks = Grid<CellMark>(state.CellsAcross, state.CellsDown);
}

OneBased<int> CountStipples(const Grid<StippleCell>& cells, int across, int down, int paintCount) {
    OneBased<int> counts(paintCount);
    for (int y = 1; y <= down; ++y) {
        for (const StippleCell& cell : cells.Row(y).First(across + 1).From(1)) {
            if (counts.Holds(cell.ColorIndex)) {
                ++counts[cell.ColorIndex];
            }
        }
    }
    return counts;
}

OneBased<int> CountStipples(const Grid<StippleCell>& cells, int paintCount) {
    return CountStipples(cells, cells.Across(), cells.Down(), paintCount);
}

}  // namespace vendrel
