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

// The marks of the search are wiped before the painting starts, so they are drawn only for
// somebody who watches.
void ShowMark(const Workplace& place, CellPos cell, Color color) {
    if (place.Screen.Watched()) {
        DrawColorStipple(place, cell.X, cell.Y, color);
    }
}

void ClaimCell(WorkState& state, CellPos cell, int areaNumber) {
    CellMark& mark = state.CellMarks(cell.X, cell.Y);
    mark.AreaNumber = areaNumber;
    mark.Visited = true;
    state.Stipples(cell.X, cell.Y).AreaNumber = areaNumber;
}

void MarkOneCell(const Workplace& place, CellPos seed, int areaNumber, PassProgress& progress) {
    WorkState& state = place.State;
    const int colorIndex = state.Stipples(seed.X, seed.Y).ColorIndex;
    if (CheckLoner(state, seed.X, seed.Y, colorIndex)) {
        ShowMark(place, seed, kLonerMark);
        state.CellMarks(seed.X, seed.Y).Loner = true;
        return;
    }
    ShowMark(place, seed, kSeedMark);
    AreaSearch{state.Stipples, state.CellMarks, state.TestCells}.Grow(
        seed, colorIndex,
        [&](CellPos cell) {
            ClaimCell(state, cell, areaNumber);
            ShowMark(place, cell, kAcceptedMark);
            progress.Step();
        },
        [&](CellPos cell) { ShowMark(place, cell, kQueuedMark); }, [] {});
}

}  // namespace

bool CheckLoner(const WorkState& state, int x, int y, int colorIndex) {
    return IsLoner(state.Stipples, x, y, colorIndex);
}

void MarkCells(const Workplace& place, std::span<const CellPos> cells, PassProgress& progress) {
    for (const CellPos& cell : cells) {
        if (place.State.CellMarks(cell.X, cell.Y).Visited) {
            continue;
        }
        const int areaNumber = place.State.NextAreaNumber;
        ClaimCell(place.State, cell, areaNumber);
        progress.Step();
        MarkOneCell(place, cell, areaNumber, progress);
        CountUp(place.State.NextAreaNumber, "areas to paint",
                "an easier difficulty, fewer final paints, or a clean-up in Touch Up");
    }
}

void RedrawLoners(const Workplace& place, int colorIndex, std::span<const CellPos> cells,
                  BrushShape shape) {
    for (const CellPos& cell : cells) {
        const bool loner = CheckLoner(place.State, cell.X, cell.Y, colorIndex);
        place.State.CellMarks(cell.X, cell.Y).Loner = loner;
        if (loner) {
            const StippleCell& stipple = place.State.Stipples(cell.X, cell.Y);
            DrawOneStipple(place, stipple.X, stipple.Y, colorIndex, Record::Yes, shape);
        }
    }
}

}  // namespace vendrel
