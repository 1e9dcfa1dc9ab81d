#include "touchup/acceptance.h"

#include <utility>

#include "shell/found_palette.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "shell/symbol_of.h"

namespace vendrel {
namespace {

// New palette index of every old one, 0 for a paint that drops out.
OneBased<int> MovePaints(WorkState& state, AcceptReport& report) {
    OneBased<int> moved(state.FoundCount);
    PaintList kept;
    for (int old = 1; old <= moved.Count(); ++old) {
        const PaintColor& paint = state.FoundColors[old];
        if (paint.CellCount == 0) {
            report.Dropped.push_back(paint.PaintName);
            continue;
        }
        kept.Add(paint);
        moved[old] = kept.Count();
        const int before = SymbolOf(state.FoundColors, old);
        const int now = SymbolOf(kept, moved[old]);
        if (now != before) {
            report.Moves.push_back({paint.PaintName, before, now});
        }
    }
    SetPalette(state, std::move(kept));
    return moved;
}

}  // namespace

AcceptReport TakeOverCopies(WorkState& state) {
    AcceptReport report;
    const OneBased<int> moved = MovePaints(state, report);
    for (StippleCell& cell : state.EditStipples.All()) {
        cell.ColorIndex = moved[cell.ColorIndex];
        cell.AreaNumber = 0;
    }
    SetGrid(state, std::exchange(state.EditStipples, {}));
    SetFoundColors(state, state.PaintColors);
    return report;
}

}  // namespace vendrel
