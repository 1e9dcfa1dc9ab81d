#include "touchup/edit_pen.h"

namespace vendrel {

void EditPen::Paint(CellPos pos, int paint) {
    if (!MayPaint(pos) || !sheet_->HoldsPaint(paint)) {
        return;
    }
    const int from = sheet_->PaintAt(pos);
    if (from == paint) {
        return;
    }
    sheet_->SetPaint(pos, paint);
    changes_.push_back(ChangeAt(pos, from, paint));
    dirty_.Include(pos);
}

CellRect DoChanges(EditSheet& sheet, const std::vector<CellChange>& changes) {
    CellRect dirty;
    for (const CellChange& change : changes) {
        sheet.SetPaint({change.X, change.Y}, change.To);
        dirty.Include({change.X, change.Y});
    }
    return dirty;
}

CellRect UndoChanges(EditSheet& sheet, const std::vector<CellChange>& changes) {
    CellRect dirty;
    for (std::size_t i = changes.size(); i-- > 0;) {
        const CellChange& change = changes[i];
        sheet.SetPaint({change.X, change.Y}, change.From);
        dirty.Include({change.X, change.Y});
    }
    return dirty;
}

}  // namespace vendrel
