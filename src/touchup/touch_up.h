#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "shell/workplace.h"
#include "touchup/edit_history.h"
#include "touchup/palette_steps.h"
#include "touchup/recording.h"
#include "touchup/recovery.h"
#include "touchup/small_areas.h"
#include "touchup/tidying.h"
#include "touchup/tools.h"

namespace vendrel {

/// What a clean-up at the present level would do.
struct CleanUpPreview {
    int Changes = 0;  // stipples repainted
    int AreasLeft = 0;
};

/// One session of the touch-up editor, from its opening until Accept or Cancel: edits of the copies
/// FoundColors and EditStipples, each of them a step to undo. Every edit answers the rectangle of
/// stipples to draw anew; counts stand in the paints' CellCount. Palette indexes shift with
/// loads and TidyPaints alone.
class TouchUp {
  public:
    static constexpr const char* kEraseName = "Erase";

    /// Opens the editor on the kit's grid. Throws Error when there is none.
    explicit TouchUp(Workplace& place);
    TouchUp(const TouchUp&) = delete;
    TouchUp& operator=(const TouchUp&) = delete;
    ~TouchUp() = default;

    [[nodiscard]] const EditSheet& Sheet() const { return sheet_; }

    // A stroke runs from press to release and is one step.
    CellRect BeginStroke(CellPos at, EditBrush brush);
    /// The brush gives stipples back what the conversion gave them.
    CellRect BeginErasing(CellPos at, EditBrush brush);
    CellRect StrokeTo(CellPos at);
    void EndStroke();
    [[nodiscard]] bool Drawing() const { return drawing_; }

    /// A step of any kind: what `work` paints. Nothing where that changes nothing.
    CellRect Edit(const std::string& name, EditIntent intent,
                  const std::function<void(EditPen&)>& work);
    /// A step to another palette, its stipples following.
    void ChangePalette(const std::string& name, EditIntent intent, SheetContents sheet);
    /// From here on all tools leave the stipples outside alone; no set lifts that.
    void KeepWithin(std::shared_ptr<const CellSet> cells);

    CellRect Fill(CellPos at, int paint);
    CellRect Replace(int from, int to);

    /// The paint that a stipple has without the edits of its own; 0 outside the base.
    [[nodiscard]] int BasePaintAt(CellPos at) const { return Base().PaintAt(at); }
    /// Whether an edit of its own lies over a stipple; a stroke counts when it has ended.
    [[nodiscard]] bool IsEdited(CellPos at) const { return Base().IsEdited(at); }
    /// Takes the edits of these stipples away, as one step.
    CellRect Erase(std::span<const CellPos> cells, const std::string& name = kEraseName);

    void RaiseCleanLevel();
    void LowerCleanLevel();
    [[nodiscard]] CleanUpPreview PreviewCleanUp() const;
    CellRect CleanUp();

    /// Areas of fewer than `smallest` stipples take the paint beside them.
    [[nodiscard]] AreaMerge PreviewAreaMerge(int smallest) const;
    CellRect MergeAreas(int smallest);

    [[nodiscard]] bool CanUndo() const { return history_.CanUndo() || pen_.Drew(); }
    [[nodiscard]] bool CanRedo() const { return history_.CanRedo() && !pen_.Drew(); }
    [[nodiscard]] std::string UndoName() const {
        return pen_.Drew() ? StrokeName() : history_.UndoName();
    }
    [[nodiscard]] std::string RedoName() const { return CanRedo() ? history_.RedoName() : ""; }
    CellRect Undo();
    CellRect Redo();
    /// Names of all steps, the undone ones too, and how many are done.
    [[nodiscard]] std::vector<std::string> StepNames() const { return history_.Names(); }
    [[nodiscard]] int StepsDone() const { return history_.Done(); }
    /// Undoes or redoes until that many are done.
    CellRect GoToStep(int done);

    /// Drops the paints that no stipple uses, as one step; nothing where there is none. Throws
    /// Error while a broken load stands.
    TidyReport TidyPaints();

    /// Writes the saved grid of this photo and difficulty, whole or not at all. Throws FileError,
    /// and Error while a broken load stands.
    void SaveIt_Click();
    /// The same by `save`, which gets the copies and what Accept would make the kit's edits, and
    /// may answer that it would rather not.
    using SaveSheet = std::function<bool(const EditSheet& sheet, const KitEdits& edits)>;
    bool SaveBy(const SaveSheet& save);
    /// Reads the saved grid into the copies as they are sized; one that is not all there or does
    /// not fit throws before anything is touched. One step, even when a broken line ends it
    /// part-way: draw everything anew then, too.
    CellRect LoadIt_Click();
    [[nodiscard]] bool CanLoad() const;

    /// Something was changed that is in no saved grid: ask before Cancel.
    [[nodiscard]] bool HasChanges() const { return !IsSaved() || ChangesAreBuried(); }
    /// What is shown is in the saved grid, or nothing was done to it.
    [[nodiscard]] bool IsSaved() const {
        return !pen_.Drew() && (InSavedGrid() || (!saved_ && history_.StateId() == 0));
    }
    /// A load replaced changes that were in no saved grid: only taking it back brings them again.
    [[nodiscard]] bool ChangesAreBuried() const;
    /// Takes the load back that buried changes last.
    CellRect DigOut();
    /// Makes the copies the kit's grid and closes; the main window then draws the stipples anew
    /// and goes to stage 3. The photo takes the shape of copies that have another. Throws Error,
    /// and stays open, when a broken load left copies without paint or the photo cannot be read for
    /// that.
    void Accept();
    /// Closes. The kit takes over what this session saved last, and is as it was at the opening
    /// when nothing was saved. True when it was given another grid, as by Accept. Throws as that.
    [[nodiscard]] bool Cancel();
    /// The last thing to do after Accept or Cancel: keeps an accepted but unsaved grid recoverable
    /// and removes the recovery file when nothing unsaved is left. Throws FileError.
    void SettleRecovery();

    /// Brings kept work back, as one step: its edits over the present base, or, where it has none,
    /// its grid in its own shape. Its file goes when what came of it is
    /// saved or accepted. Throws Error, with nothing changed, when the file is broken or in use.
    CellRect Restore(const KeptWork& work);
    /// What became of the edits restored last, where other settings have made the base since.
    [[nodiscard]] const std::string& RestoreReport() const { return restoreReport_; }
    /// To be called about once a second: keeps the recovery file close behind the edits. Throws
    /// FileError.
    void KeepRecovery(EditTime now);
    /// The same at once, for when the program is about to be ended. Throws FileError.
    void KeepRecoveryNow();

  private:
    static constexpr const char* kBrushName = "Brush";
    void LeaveOutWhatMayNotBePainted(std::vector<CellChange>& changes) const;
    [[nodiscard]] std::string StrokeName() const { return erasing_ ? kEraseName : kBrushName; }

    void PushStroke(std::string name, EditIntent intent = EditIntent::Paint);
    const BaseView& Base() const;
    void PushReplacement(std::string name, EditIntent intent,
                         std::shared_ptr<const EditLayer> layer = nullptr);
    CellRect AfterStep(CellRect dirty);
    void ShowFinalColors();
    void WriteRecovery();
    void RemoveRestored();
    [[nodiscard]] RecordedEdits Recorded() const;
    void PutDown(RecordedEdits recorded);
    [[nodiscard]] bool GiveSavedToKit();
    [[nodiscard]] bool InSavedGrid() const { return history_.StateId() == savedId_; }

    /// A load or a restored recovery among the steps.
    struct Replacement {
        int Step = 0;
        bool Buries = false;                       // changes that no saved grid had
        std::shared_ptr<const HeldFile> Restored;  // the file it came from
    };

    [[nodiscard]] std::filesystem::path GridFile() const;

    Workplace& place_;
    KitEdits atOpening_;
    mutable BaseView base_;
    mutable int baseId_ = -1;  // state of the history that base_ was looked at
    EditSheet sheet_;
    EditPen pen_{sheet_};
    EditHistory history_;
    RecoveryTimer timer_;
    EditBrush brush_;
    bool erasing_ = false;  // the stroke gives the base back
    CellPos strokeAt_;
    bool drawing_ = false;
    int savedId_ = -1;  // state of the history that the saved grid holds, also after a load
    bool accepted_ = false;
    /// What this session saved last.
    struct Saved {
        SheetContents Contents;
        int Step = 0;  // state of the history
        RecordedEdits Edits;
    };
    std::optional<Saved> saved_;
    std::vector<Replacement> replacements_;
    std::string restoreReport_;
    PaintList foundAtOpening_;
    int finalAtOpening_ = 0;
    int wantedAtOpening_ = 0;  // final paints checked in the menu
    bool unsavedAtOpening_ = false;
};

}  // namespace vendrel
