#pragma once

#include <cstddef>

#include "cleanup/neighbour_bounds.h"
#include "drawing/neighbours.h"
#include "shell/records.h"
#include "support/cell_queue.h"
#include "support/grid.h"

namespace vendrel {

/// True when none of the neighbours that the search may step to carries paint `colorIndex`.
[[nodiscard]] bool CheckLoner(const Grid<StippleCell>& stipples, int x, int y, int colorIndex);

/// How many areas the search would find on a grid; cells without a paint belong to none.
[[nodiscard]] int CountAreas(const Grid<StippleCell>& stipples);

/// Grows an area of like-painted cells around a seed, breadth first. The seed's own eight
/// neighbours are looked at without bounds; later steps keep to SearchMayStep.
struct AreaSearch {
    const Grid<StippleCell>& Stipples;
    Grid<CellMark>& Marks;
    CellQueue& TestCells;

    /// `accepted(cell)` for every cell that joins, `queued(cell)` for every cell put in the queue,
    /// `stepped()` after each queue entry.
    template <class Accepted, class Queued, class Stepped>
    void Grow(CellPos seed, int colorIndex, Accepted accepted, Queued queued, Stepped stepped) {
        for (const CellPos& step : kNeighbours) {
            TestCells.Push({seed.X + step.X, seed.Y + step.Y});
        }
        while (!TestCells.Empty()) {
            const CellPos cell = TestCells.Front();
            if (Stipples.Holds(cell.X, cell.Y) &&
                Stipples(cell.X, cell.Y).ColorIndex == colorIndex &&
                !Marks(cell.X, cell.Y).Visited) {
                Marks(cell.X, cell.Y).Visited = true;
                accepted(cell);
                QueueNeighbours(cell, queued);
            }
            TestCells.Pop();
            stepped();
        }
    }

  private:
    template <class Queued>
    void QueueNeighbours(CellPos cell, Queued queued) {
        for (const CellPos& step : kNeighbours) {
            const CellPos next{cell.X + step.X, cell.Y + step.Y};
            if (SearchMayStep(step, next, Stipples.Across(), Stipples.Down()) &&
                !Marks(next.X, next.Y).Visited && TestCells.Push(next)) {
                queued(next);
            }
        }
    }
};

}  // namespace vendrel
