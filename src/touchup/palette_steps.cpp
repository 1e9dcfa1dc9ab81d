#include "touchup/palette_steps.h"

#include "edits/lay_edits.h"

namespace vendrel {
namespace {

// Paints get new numbers: `newOf` by the old one, 0 stays 0.
void Renumber(SheetContents& sheet, const OneBased<int>& newOf) {
    for (StippleCell& cell : sheet.EditStipples.All()) {
        // Outside what a smaller load announced, anything may stand.
        cell.ColorIndex = newOf.Holds(cell.ColorIndex) ? newOf[cell.ColorIndex] : 0;
    }
    sheet.Announced.Paints = sheet.FoundColors.Count();
}

}  // namespace

SheetContents WithPaints(const EditSheet& sheet, const PaintList& paints) {
    SheetContents more = sheet.Copy();
    for (const PaintColor& paint : paints) {
        more.FoundColors.Add(paint);
        more.FoundColors.Last().CellCount = 0;
    }
    more.Announced.Paints = more.FoundColors.Count();
    return more;
}

SheetContents WithoutPaint(const EditSheet& sheet, int paint) {
    SheetContents fewer = sheet.Copy();
    PaintList& paints = fewer.FoundColors;
    const int heir = StandInByEye(paints, paints[paint], paint);
    OneBased<int> newOf(paints.Count());
    for (int old = 1; old <= paints.Count(); ++old) {
        const int kept = old == paint ? heir : old;
        newOf[old] = kept > paint ? kept - 1 : kept;
    }
    paints[heir].CellCount += paints[paint].CellCount;
    fewer.Spare.push_back(paints[paint]);  // a load may need the room again
    paints.Remove(paint);
    Renumber(fewer, newOf);
    return fewer;
}

SheetContents WithPaintMoved(const EditSheet& sheet, int from, int to) {
    SheetContents moved = sheet.Copy();
    PaintList& paints = moved.FoundColors;
    OneBased<int> newOf(paints.Count());
    for (int old = 1; old <= paints.Count(); ++old) {
        newOf[old] = old == from               ? to
                     : old > from && old <= to ? old - 1
                     : old < from && old >= to ? old + 1
                                               : old;
    }
    const PaintList before = paints;
    for (int old = 1; old <= before.Count(); ++old) {
        paints[newOf[old]] = before[old];
    }
    Renumber(moved, newOf);
    return moved;
}

}  // namespace vendrel
