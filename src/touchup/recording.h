#pragma once

#include <span>
#include <vector>

#include "shell/edit_past.h"
#include "touchup/edit_history.h"

namespace vendrel {

/// What the done steps of a session make of the kit's edits. `atOpening` are those that the sheet
/// was opened with; over the base that is answered the layer gives exactly the sheet. Among the
/// moments are only those over that base.
struct RecordedEdits {
    KitEdits Edits;
    std::vector<EditMoment> Moments;
    bool NewBase = false;  // a load among the steps made the base another one
};

[[nodiscard]] RecordedEdits RecordEdits(const KitEdits& atOpening, std::span<const EditStep> done,
                                        const EditSheet& sheet);

/// The same without the moments, and at any time: what a stroke drew until now is painted by hand.
[[nodiscard]] KitEdits EditsUntilNow(const KitEdits& atOpening, std::span<const EditStep> done,
                                     const EditSheet& sheet);

/// The base as the sheet would show it without the edits of single stipples.
class BaseView {
  public:
    BaseView() = default;
    BaseView(const KitEdits& atOpening, std::span<const EditStep> done, const EditSheet& sheet);

    /// Goes on with one step more; false, with nothing done, where all must be looked at anew.
    [[nodiscard]] bool Continue(const EditStep& step);
    /// The sheet's paint for a stipple; 0 outside the base.
    [[nodiscard]] int PaintAt(CellPos at) const;
    /// Whether an edit of its own lies over a stipple.
    [[nodiscard]] bool IsEdited(CellPos at) const {
        return edited_.Holds(at.X, at.Y) && edited_(at.X, at.Y) != 0;
    }

  private:
    void Follow(const SheetContents& before, const SheetContents& after);
    void Take(const EditLayer& layer);

    ValueGrid edited_;
    Grid<StippleCell> cells_;
    PaintList paints_;  // of the base
    PaintList shown_;   // for each of them, as exchanges have it
    OneBased<int> shownAs_;
};

}  // namespace vendrel
