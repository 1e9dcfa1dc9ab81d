#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "shell/workplace.h"
#include "touchup/touch_up.h"

namespace vendrel {

/// What a press on the picture does.
enum class TouchUpTool { Brush, Fill, Replace };

/// A paint of the editor's palette, by index from 1.
struct TouchUpPaint {
    std::string Symbol;
    std::string Name;
    std::string Label;  // set, name and code
    Color Swatch = kBlack;
    int Count = 0;  // stipples; at 0 the row is greyed, but can be painted with again

    bool operator==(const TouchUpPaint&) const = default;
};

/// Work that was left unsaved, as the list shows it.
struct KeptRow {
    std::string When;  // "2026-03-01 21:40", local time
    std::string Photo;
    std::string Difficulty;

    bool operator==(const KeptRow&) const = default;
};

/// What the list of kept work shows.
struct KeptControls {
    bool Shown = false;
    std::vector<KeptRow> Rows;  // the newest first
    int Row = -1;               // the chosen one, from 0; -1 for none
    bool RestoreEnabled = false;
    bool ThrowAwayEnabled = false;
    std::string Hint;  // what can be done with the chosen one
};

/// What the touch-up window shows.
struct TouchUpControls {
    TouchUpTool Tool = TouchUpTool::Brush;
    EditBrush Brush;  // size, and the paint of all tools
    OneBased<TouchUpPaint> Palette;
    bool BlinkLoners = false;
    bool BlinkPaint = false;  // every stipple of the chosen paint
    std::string Loners;       // how many are left, and where the last one found stands
    int CleanLevel = 8;
    bool RaiseEnabled = false;
    bool LowerEnabled = false;
    bool CleanEnabled = false;
    std::string CleanPreview;  // what a clean-up would do
    std::string UndoCaption;
    std::string RedoCaption;
    bool UndoEnabled = false;
    bool RedoEnabled = false;
    bool LoadEnabled = false;
    bool TidyEnabled = false;
    bool KeptEnabled = false;
    bool Unsaved = false;
    KeptControls Kept;
    std::string Status;  // how the last command went
};

/// The touch-up editor without its window. Pointer positions are stipples, and may lie outside the
/// picture. Handlers throw Error; the edit stays open then.
class TouchUpForm {
  public:
    explicit TouchUpForm(Workplace& place) : place_(place) {}

    /// Opens the editor on the kit's grid. Throws Error when there is none.
    void Form_Load();
    /// Shows the list of kept work when some of it belongs to the photo and difficulty at work.
    void OfferRecovery();
    /// False before Form_Load and from Accept or Cancel on; then nothing else may be called.
    [[nodiscard]] bool Open() const { return editor_ != nullptr; }
    [[nodiscard]] const EditSheet& Sheet() const { return editor_->Sheet(); }
    [[nodiscard]] const TouchUpControls& Controls() const { return controls_; }

    void Tool_Click(TouchUpTool tool);
    void BrushSize_Click(BrushSize size);
    /// Takes a paint of the palette up; others are left alone.
    void PaintList_Click(int paint);

    /// The tool is put down; a stroke goes on with PointerTo. Of what is shown, all but the counts
    /// of the palette waits for PointerUp.
    void PointerDown(CellPos at);
    void PointerTo(CellPos at);
    void PointerUp();
    /// Takes up the paint of the stipple there.
    void PickPaint(CellPos at);
    /// "Column 3, row 5: paint"; empty outside the picture.
    [[nodiscard]] std::string Describe(CellPos at) const;

    void Undo_Click();
    void Redo_Click();

    void BlinkLoners_Click();
    void BlinkPaint_Click();
    /// The stipples that blink, row-major.
    [[nodiscard]] const std::vector<CellPos>& Marked();
    /// Steps to the next loner; nothing when there is none.
    std::optional<CellPos> NextLoner_Click();

    void RaiseCleanLevel_Click();
    void LowerCleanLevel_Click();
    void CleanUp_Click();

    /// Drops the paints that no stipple uses, and tells which symbols moved.
    void TidyPaints_Click();

    // The list of kept work. Rows count from 0.
    void KeptWork_Click();
    void KeptList_Click(int row);
    void RestoreKept_Click();
    /// Asks, naming the work.
    void ThrowKeptAway_Click();
    void CloseKept_Click();

    void LoadIt_Click();
    void SaveIt_Click();
    void Accept_Click();
    /// Closes; what was saved goes into the kit. Asks when there are changes, and stays open when
    /// they cannot be saved.
    void Cancel_Click();

    /// To be called about once a second. What goes wrong is told in the status.
    void KeepRecovery(EditTime now);
    /// For the end of the session: keeps what is not saved at once. Throws FileError.
    void KeepRecoveryNow() { editor_->KeepRecoveryNow(); }

    /// The stipples to draw anew since the last call.
    [[nodiscard]] CellRect TakeDirty();

  private:
    void Touched(const CellRect& dirty);
    void Follow();
    void FollowPalette();
    void FollowCleanUp();
    void FollowLoners();
    void MarkAgain() { markedStale_ = true; }
    void FollowKept();
    void ListKept();
    void TellReport(const TidyReport& report);
    [[nodiscard]] bool MayClose();
    /// Closes the window; the kit was given another grid, or not.
    void Close(bool given);
    /// Goes on with the same paint in hand, wherever the palette has it afterwards.
    void KeepPaintInHand(const std::function<void()>& step);

    Workplace& place_;
    std::unique_ptr<TouchUp> editor_;
    TouchUpControls controls_;
    CellRect dirty_;
    std::vector<CellPos> marked_;
    bool markedStale_ = true;
    std::vector<KeptWork> kept_;
    CellPos lonerAt_;  // {0, 0} until one was stepped to
};

}  // namespace vendrel
