#include "touchup/acceptance.h"

#include <utility>

namespace vendrel {
namespace {

// New palette index of every old one, 0 for a paint that drops out.
std::vector<int> MovePaints(WorkState& state, AcceptReport& report) {
    std::vector<int> moved(static_cast<std::size_t>(state.FoundCount) + 1);
    std::vector<PaintColor> kept(1);
    for (std::size_t old = 1; old < moved.size(); ++old) {
        const PaintColor& paint = state.FoundColors[old];
        if (paint.CellCount == 0) {
            report.Dropped.push_back(paint.PaintName);
            continue;
        }
        moved[old] = static_cast<int>(kept.size());
        kept.push_back(paint);
        if (moved[old] != static_cast<int>(old)) {
            report.Moves.push_back({paint.PaintName, static_cast<int>(old), moved[old]});
        }
    }
    state.PaintColors = std::move(kept);
    state.PaintCount = static_cast<int>(state.PaintColors.size()) - 1;
    return moved;
}

}  // namespace

AcceptReport TakeOverCopies(WorkState& state) {
    AcceptReport report;
    const std::vector<int> moved = MovePaints(state, report);
    for (StippleCell& cell : state.EditStipples.All()) {
        cell.ColorIndex = moved[static_cast<std::size_t>(cell.ColorIndex)];
        cell.AreaNumber = 0;
    }
    state.Stipples = std::exchange(state.EditStipples, {});
    state.CellMarks = Grid<CellMark>(state.Stipples.Across(), state.Stipples.Down());
    state.FoundColors = state.PaintColors;
    state.FoundCount = state.PaintCount;
    return report;
}

}  // namespace vendrel
