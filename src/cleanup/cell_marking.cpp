#include "cleanup/cell_marking.h"

#include "cleanup/area_search.h"
#include "drawing/stipple_brush.h"
#include "support/counter.h"

namespace vendrel {
namespace {

constexpr Color kSeedMark = Rgb(255, 0, 0);
constexpr Color kQueuedMark = Rgb(64, 0, 0);
constexpr Color kAcceptedMark = Rgb(128, 0, 0);
constexpr Color kLonerMark = Rgb(0, 0, 255);

void ClaimCell(StippleGrid& grid, CellPos cell, int areaNumber) {
    CellMark& mark = grid.CellMarks(cell.X, cell.Y);
    mark.AreaNumber = areaNumber;
    mark.Visited = true;
    grid.Stipples(cell.X, cell.Y).AreaNumber = areaNumber;
}

class AreaMarker {
  public:
    AreaMarker(const Easel& easel, StippleGrid& grid, CellQueue& testCells, PassProgress& progress)
        : easel_(easel), grid_(grid), testCells_(testCells), progress_(progress) {}

    void MarkOneCell(CellPos seed, int areaNumber) {
        ClaimCell(grid_, seed, areaNumber);
        progress_.Step();
        const int colorIndex = grid_.Stipples(seed.X, seed.Y).ColorIndex;
        if (CheckLoner(grid_.Stipples, seed.X, seed.Y, colorIndex)) {
            ShowMark(seed, kLonerMark);
            grid_.CellMarks(seed.X, seed.Y).Loner = true;
            return;
        }
        ShowMark(seed, kSeedMark);
        AreaSearch{grid_.Stipples, grid_.CellMarks, testCells_}.Grow(
            seed, colorIndex,
            [&](CellPos cell) {
                ClaimCell(grid_, cell, areaNumber);
                ShowMark(cell, kAcceptedMark);
                progress_.Step();
            },
            [&](CellPos cell) { ShowMark(cell, kQueuedMark); }, [] {});
    }

  private:
    // The marks of the search are wiped before the painting starts, so they are drawn only for
    // somebody who watches.
    void ShowMark(CellPos cell, Color color) const {
        if (easel_.Screen.Watched()) {
            DrawColorStipple(easel_, grid_, cell.X, cell.Y, color);
        }
    }

    const Easel& easel_;
    StippleGrid& grid_;
    CellQueue& testCells_;
    PassProgress& progress_;
};

}  // namespace

void MarkCells(const Easel& easel, StippleGrid& grid, PaintPass& pass,
               std::span<const CellPos> cells, PassProgress& progress) {
    AreaMarker marker(easel, grid, pass.TestCells, progress);
    for (const CellPos& cell : cells) {
        if (!grid.CellMarks(cell.X, cell.Y).Visited) {
            marker.MarkOneCell(cell, pass.NextAreaNumber);
            CountUp(pass.NextAreaNumber, "areas to paint",
                    "an easier difficulty, fewer final paints, or a clean-up in Touch Up");
        }
    }
}

void RedrawLoners(const Easel& easel, StippleGrid& grid, int colorIndex,
                  std::span<const CellPos> cells, BrushShape shape) {
    for (const CellPos& cell : cells) {
        const bool loner = CheckLoner(grid.Stipples, cell.X, cell.Y, colorIndex);
        grid.CellMarks(cell.X, cell.Y).Loner = loner;
        if (loner) {
            const StippleCell& stipple = grid.Stipples(cell.X, cell.Y);
            DrawOneStipple(easel, stipple.X, stipple.Y, colorIndex, Record::Yes, shape);
        }
    }
}

}  // namespace vendrel
