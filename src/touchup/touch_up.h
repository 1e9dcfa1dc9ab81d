#pragma once

#include <string>
#include <vector>

#include "shell/workplace.h"
#include "touchup/acceptance.h"
#include "touchup/edit_history.h"
#include "touchup/recovery.h"
#include "touchup/tools.h"

namespace vendrel {

/// What a clean-up at the present level would do.
struct CleanUpPreview {
    int Changes = 0;  // stipples repainted
    int AreasLeft = 0;
};

/// One session of the touch-up editor, from its opening until Accept or Cancel: edits of the copies
/// FoundColors and EditStipples, each of them a step to undo. Every edit answers the rectangle of
/// stipples to draw anew; counts stand in the paints' CellCount. Palette indexes never shift while
/// the editor is open.
class TouchUp {
  public:
    /// Opens the editor on the kit's grid. Throws Error when there is none.
    explicit TouchUp(Workplace& place);
    TouchUp(const TouchUp&) = delete;
    TouchUp& operator=(const TouchUp&) = delete;
    ~TouchUp() = default;

    [[nodiscard]] const EditSheet& Sheet() const { return sheet_; }

    // A stroke runs from press to release and is one step.
    CellRect BeginStroke(CellPos at, EditBrush brush);
    CellRect StrokeTo(CellPos at);
    void EndStroke();

    CellRect Fill(CellPos at, int paint);
    CellRect Replace(int from, int to);

    void RaiseCleanLevel();
    void LowerCleanLevel();
    [[nodiscard]] CleanUpPreview PreviewCleanUp() const;
    CellRect CleanUp();

    [[nodiscard]] bool CanUndo() const { return history_.CanUndo() || pen_.Drew(); }
    [[nodiscard]] bool CanRedo() const { return history_.CanRedo() && !pen_.Drew(); }
    [[nodiscard]] std::string UndoName() const {
        return pen_.Drew() ? kBrushName : history_.UndoName();
    }
    [[nodiscard]] std::string RedoName() const { return CanRedo() ? history_.RedoName() : ""; }
    CellRect Undo();
    CellRect Redo();

    /// Writes the saved grid of this photo and difficulty, whole or not at all. Throws FileError,
    /// and Error while a broken load stands.
    void SaveIt_Click();
    /// Reads the saved grid into the copies as they are sized; one that is not all there or does
    /// not fit throws before anything is touched. One step, even when a broken line ends it
    /// part-way: draw everything anew then, too.
    CellRect LoadIt_Click();
    [[nodiscard]] bool CanLoad() const;

    /// Something was changed that is in no saved grid: ask before Cancel.
    [[nodiscard]] bool HasChanges() const;
    /// Makes the copies the kit's grid and closes; the main window then draws the stipples anew
    /// and goes to stage 3. Throws Error, and stays open, when the copies do not fit the photo.
    AcceptReport Accept();
    /// Closes and leaves the kit as it was at the opening.
    void Cancel();
    /// The last thing to do after Accept or Cancel: keeps an accepted but unsaved grid recoverable
    /// and removes the recovery file when nothing unsaved is left. Throws FileError.
    void SettleRecovery();

    /// Work of a session that ended without a save was found at the opening: ask whether to take
    /// it or give it up.
    [[nodiscard]] bool RecoveryOffered() const { return recoveryOffered_; }
    /// Brings the found work back, as one step. Throws Error, with nothing changed, when the file
    /// is broken or belongs to another size.
    CellRect TakeRecovery();
    /// Gives the found work up on purpose.
    void DiscardRecovery();
    /// To be called about once a second: keeps the recovery file close behind the edits. Throws
    /// FileError.
    void KeepRecovery(EditTime now);
    /// The same at once, for when the program is about to be ended. Throws FileError.
    void KeepRecoveryNow();

  private:
    static constexpr const char* kBrushName = "Brush";

    void PushStroke(std::string name);
    void PushLoad(std::string name);
    CellRect AfterStep(CellRect dirty);
    void ShowFinalColors();
    void WriteRecovery();
    void MakeRoomForRecovery();
    [[nodiscard]] bool IsSaved() const { return history_.StateId() == savedId_ && !pen_.Drew(); }

    [[nodiscard]] std::filesystem::path GridFile() const;

    Workplace& place_;
    EditSheet sheet_;
    EditPen pen_{sheet_};
    EditHistory history_;
    RecoveryTimer timer_;
    EditBrush brush_;
    CellPos strokeAt_;
    bool drawing_ = false;
    int savedId_ = -1;  // state of the history that the saved grid holds
    bool recoveryOffered_ = false;
    PaintList foundAtOpening_;
    int finalAtOpening_ = 0;
    int wantedAtOpening_ = 0;  // final paints checked in the menu
    bool unsavedAtOpening_ = false;
};

}  // namespace vendrel
