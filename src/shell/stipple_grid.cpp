#include "shell/stipple_grid.h"

#include <algorithm>
#include <utility>

namespace vendrel {

void SetGrid(StippleGrid& grid, Grid<StippleCell> cells) {
    grid.Stipples = std::move(cells);
    grid.CellsAcross = grid.Stipples.Across();
    grid.CellsDown = grid.Stipples.Down();
    grid.CellMarks = Grid<CellMark>(grid.CellsAcross, grid.CellsDown);
}

ValueGrid PaintsOf(const StippleGrid& grid) {
    ValueGrid paints(grid.CellsAcross - 1, grid.CellsDown - 1);
    for (int y = 1; y <= grid.CellsDown; ++y) {
        for (int x = 1; x <= grid.CellsAcross; ++x) {
            paints(x - 1, y - 1) = grid.Stipples(x, y).ColorIndex - 1;
        }
    }
    return paints;
}

bool SameStipples(const Grid<StippleCell>& a, const Grid<StippleCell>& b) {
    return a.Across() == b.Across() && a.Down() == b.Down() &&
           std::ranges::equal(a.All(), b.All(), {}, &StippleCell::ColorIndex,
                              &StippleCell::ColorIndex);
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
