#include "touchup/edit_pen.h"

namespace vendrel {

void EditPen::Paint(CellPos pos, int paint) {
    if (!MayPaint(pos) || !sheet_->HoldsPaint(paint)) {
        return;
    }
    const int from = sheet_->PaintAt(pos);
    if (changes_.empty() && kept_.empty()) {
        touched_ = CellSet(sheet_->Across(), sheet_->Down());
    }
    if (from == paint) {
        if (!touched_.Has(pos)) {
            kept_.push_back(ChangeAt(pos, from, paint));
            touched_.Add(pos);
        }
        return;
    }
    touched_.Add(pos);
    sheet_->SetPaint(pos, paint);
    changes_.push_back(ChangeAt(pos, from, paint));
    dirty_.Include(pos);
}

std::vector<CellChange> EditPen::TakeChanges() {
    kept_.clear();
    return std::exchange(changes_, {});
}

// Those come first: a stipple may have been repainted after it was let be.
std::vector<CellChange> EditPen::TakeTouched() {
    std::vector<CellChange> touched = std::exchange(kept_, {});
    if (changes_.empty()) {
        return {};
    }
    touched.insert(touched.end(), changes_.begin(), changes_.end());
    changes_.clear();
    return touched;
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
