#include "touchup/tidying.h"

#include <utility>

#include "shell/symbol_of.h"

namespace vendrel {

SheetContents WithoutUnusedPaints(const EditSheet& sheet, TidyReport& report) {
    SheetContents tidied = sheet.Copy();
    OneBased<int> moved(sheet.PaintCount());
    PaintList kept;
    for (int old = 1; old <= moved.Count(); ++old) {
        const PaintColor& paint = sheet.Paints()[old];
        if (paint.CellCount == 0) {
            report.Dropped.push_back(paint.PaintName);
            // A load may need the room again.
            tidied.Spare.push_back(paint);
            continue;
        }
        kept.Add(paint);
        moved[old] = kept.Count();
        const int before = SymbolOf(sheet.Paints(), old);
        const int now = SymbolOf(kept, moved[old]);
        if (now != before) {
            report.Moves.push_back({paint.PaintName, before, now});
        }
    }
    for (StippleCell& cell : tidied.EditStipples.All()) {
        // Outside what a smaller load announced, anything may stand.
        cell.ColorIndex = moved.Holds(cell.ColorIndex) ? moved[cell.ColorIndex] : 0;
    }
    tidied.FoundColors = std::move(kept);
    tidied.Announced.Paints = tidied.FoundColors.Count();
    return tidied;
}

}  // namespace vendrel
