#include "touchup/acceptance.h"

#include <utility>

#include "shell/symbol_of.h"

namespace vendrel {
namespace {

// New palette index of every old one, 0 for a paint that drops out.
OneBased<int> MovePaints(const PaintList& found, PaintList& kept, AcceptReport& report) {
    OneBased<int> moved(found.Count());
    for (int old = 1; old <= moved.Count(); ++old) {
        const PaintColor& paint = found[old];
        if (paint.CellCount == 0) {
            report.Dropped.push_back(paint.PaintName);
            continue;
        }
        kept.Add(paint);
        moved[old] = kept.Count();
        const int before = SymbolOf(found, old);
        const int now = SymbolOf(kept, moved[old]);
        if (now != before) {
            report.Moves.push_back({paint.PaintName, before, now});
        }
    }
    return moved;
}

}  // namespace

AcceptReport TakeOverCopies(Palette& palette, StippleGrid& grid, FoundPalette& found,
                            EditedGrid& edited) {
    AcceptReport report;
    PaintList kept;
    const OneBased<int> moved = MovePaints(found.FoundColors, kept, report);
    SetPalette(palette, std::move(kept));
    for (StippleCell& cell : edited.EditStipples.All()) {
        cell.ColorIndex = moved[cell.ColorIndex];
        cell.AreaNumber = 0;
    }
    SetGrid(grid, std::exchange(edited.EditStipples, {}));
    SetFoundColors(found, palette.PaintColors);
    return report;
}

}  // namespace vendrel
