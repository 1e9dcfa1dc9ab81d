#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/kit_desk.h"
#include "forms/paint_order.h"
#include "forms/touch_up_areas.h"
#include "forms/touch_up_selection.h"
#include "shell/workplace.h"
#include "touchup/touch_up.h"

namespace vendrel {

/// What a press on the picture does.
enum class TouchUpTool { Brush, Fill, Replace, Box, Lasso, SamePaint, SameArea, Move };

/// What is held down while the picture is pressed.
struct PressKeys {
    bool Right = false;  // the button, rather than the left one
    bool Shift = false;
    bool Ctrl = false;
    bool Alt = false;
};

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
    EditBrush Brush;      // size and shape, and the paint of all tools
    int PaintBefore = 1;  // in hand before the one that is
    OneBased<TouchUpPaint> Palette;
    PaintOrder Order = PaintOrder::Symbol;
    std::vector<int> Rows;    // the paints, from 1, in that order
    std::string ChosenPaint;  // how much of it there is
    bool ShowEdits = false;   // edited stipples are tinted
    bool Alone = false;       // all other paints are paled
    bool AddEnabled = false;  // a paint of the catalogue
    bool RemoveEnabled = false;
    std::string Selected;  // what is selected or floats
    std::vector<std::string> Steps;
    int StepsDone = 0;
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
    /// `kits` keeps the kit as a file; null where there are none.
    explicit TouchUpForm(Workplace& place, KitDesk* kits = nullptr) : place_(place), kits_(kits) {}

    /// Opens the editor on the kit's grid. Throws Error when there is none.
    void Form_Load();
    /// Shows the list of kept work when some of it belongs to the photo and difficulty at work.
    void OfferRecovery();
    /// False before Form_Load and from Accept or Cancel on; then nothing else may be called.
    [[nodiscard]] bool Open() const { return editor_ != nullptr; }
    [[nodiscard]] const EditSheet& Sheet() const { return editor_->Sheet(); }
    [[nodiscard]] const TouchUpControls& Controls() const { return controls_; }

    void Tool_Click(TouchUpTool tool);
    /// 1..kLargestBrush; others take the nearest.
    void BrushSize_Click(int size);
    void BrushShape_Click();
    /// Takes a paint of the palette up; others are left alone.
    void PaintList_Click(int paint);
    /// Takes up the paint that was in hand before.
    void SwapPaints_Click();

    /// The tool is put down; a stroke goes on with PointerTo. Of what is shown, all but the counts
    /// of the palette waits for PointerUp, and the figures of areas and loners for FollowFigures.
    /// With Ctrl, or the right button, it takes up the paint there instead; with the right button
    /// and Shift the brush erases; with Shift it draws a line from where it was last. Tools that
    /// select add with Shift and take away with Alt or Ctrl and Shift; moving leaves a copy with
    /// Shift or Alt.
    void PointerDown(CellPos at, PressKeys keys = {});
    void PointerTo(CellPos at);
    void PointerUp();
    /// To be called when the hand rests: what takes longer than a stroke may.
    void FollowFigures();
    /// Takes up the paint of the stipple there.
    void PickPaint(CellPos at);
    /// "Column 3, row 5: paint"; empty outside the picture.
    [[nodiscard]] std::string Describe(CellPos at) const;

    void Undo_Click();
    void Redo_Click();
    /// Goes to the state in which so many steps are done.
    void Step_Click(int done);

    // Areas.
    [[nodiscard]] const TouchUpAreas& Areas() const { return *areas_; }
    void MergeBelow_Change(int below, AreaUnit unit);
    void MergePreview_Click();
    void MergeAreas_Click();
    void Outlines_Click();
    void MarkHard_Click();
    std::optional<CellPos> NextHard_Click();

    // The selection.
    [[nodiscard]] const TouchUpSelection& Selection() const { return *selection_; }
    void SelectAll_Click();
    void SelectNone_Click();
    void InvertSelection_Click();
    void GrowSelection_Click();
    void ShrinkSelection_Click();
    void FillSelection_Click();
    void EraseSelection_Click();
    void MirrorAcross_Click();
    void MirrorDown_Click();
    void NudgeSelection_Click(CellPos by);
    /// The selection as text for the clipboard; empty when there is none.
    [[nodiscard]] std::string Copy_Click();
    void Paste_Click(std::string_view text, CellPos middle);
    void PutDown_Click();
    /// Escape: gives up what floats, or else the selection. False when there is neither.
    bool Escape_Click();

    // The paints.
    void ShowEdits_Click() { controls_.ShowEdits = !controls_.ShowEdits; }
    /// Whether an edit of its own lies over a stipple.
    [[nodiscard]] bool IsEdited(CellPos at) const { return editor_->IsEdited(at); }
    void Alone_Click();
    void PaintOrder_Click(PaintOrder order);
    [[nodiscard]] std::vector<PaintColor> OfferPaints(const std::string& words) const;
    void AddPaint_Click(const PaintColor& paint);
    /// Its stipples go to the paint that looks most like it.
    void RemovePaint_Click();
    /// In the order of symbols.
    void MovePaint_Click(int from, int to);

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
    /// Saves the kit with what is shown, its edits too. Throws Error, FileError.
    void SaveKit_Click();
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
    void Press(CellPos at, PressKeys keys);
    void PressBrush(CellPos at, PressKeys keys);
    /// A step, and what is shown after it.
    void Do(const std::function<CellRect()>& step);
    void Reselect(const std::function<void()>& step);
    void ChangePalette(const char* name, EditIntent intent, SheetContents sheet);
    void Follow();
    void FollowSteps();
    void FollowChosenPaint();
    void TouchedAlone();
    void FollowPalette();
    void FollowCleanUp();
    void FollowLoners();
    void MarkAgain() { markedStale_ = true; }
    void FollowKept();
    void ListKept();
    void TellReport(const TidyReport& report);
    [[nodiscard]] bool MayClose();
    /// False when the painter would rather not.
    [[nodiscard]] bool SaveToKit();
    /// Closes the window; the kit was given another grid, or not.
    void Close(bool given);
    /// Goes on with the same paint in hand, wherever the palette has it afterwards.
    void KeepPaintInHand(const std::function<void()>& step);

    Workplace& place_;
    KitDesk* kits_;
    std::unique_ptr<TouchUp> editor_;
    TouchUpControls controls_;
    CellRect dirty_;
    std::vector<CellPos> marked_;
    bool markedStale_ = true;
    bool figuresStale_ = false;
    std::vector<KeptWork> kept_;
    CellPos lonerAt_;  // {0, 0} until one was stepped to
    std::optional<TouchUpAreas> areas_;
    std::optional<TouchUpSelection> selection_;
    std::optional<CellPos> lineFrom_;  // where the brush was last
};

}  // namespace vendrel
