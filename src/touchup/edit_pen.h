#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "touchup/cell_set.h"
#include "touchup/edit_sheet.h"

namespace vendrel {

/// Repaints stipples of the sheet at once and remembers which, so that the edit can be taken back.
/// Touching a stipple that has the paint already, or lies outside, changes nothing.
class EditPen {
  public:
    explicit EditPen(EditSheet& sheet) : sheet_(&sheet) {}

    void Paint(CellPos pos, int paint);
    /// From here on stipples outside that set stay as they are; no set lifts that.
    void KeepWithin(std::shared_ptr<const CellSet> cells) { within_ = std::move(cells); }

    [[nodiscard]] bool KeepsWithin() const { return within_ != nullptr; }
    [[nodiscard]] bool MayPaint(CellPos at) const {
        return sheet_->Holds(at) && (!within_ || within_->Has(at));
    }

    [[nodiscard]] EditSheet& Sheet() const { return *sheet_; }
    [[nodiscard]] bool Drew() const { return !changes_.empty(); }
    [[nodiscard]] std::vector<CellChange> TakeChanges();
    /// Together with the stipples that had their paint already: the painter wants it there, too.
    /// Nothing when all of them had.
    [[nodiscard]] std::vector<CellChange> TakeTouched();
    /// What changed since the last call.
    [[nodiscard]] CellRect TakeDirty() { return std::exchange(dirty_, {}); }

  private:
    EditSheet* sheet_;
    std::shared_ptr<const CellSet> within_;
    std::vector<CellChange> changes_;
    std::vector<CellChange> kept_;  // to the paint they had, each stipple once
    CellSet touched_;
    CellRect dirty_;
};

/// Repaints the cells as the changes say, or in reverse order back to what they were; answers the
/// rectangle touched.
CellRect DoChanges(EditSheet& sheet, const std::vector<CellChange>& changes);
CellRect UndoChanges(EditSheet& sheet, const std::vector<CellChange>& changes);

}  // namespace vendrel
