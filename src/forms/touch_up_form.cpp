#include "forms/touch_up_form.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <exception>
#include <iterator>
#include <tuple>
#include <utility>

#include "convert/stipple_conversion.h"
#include "drawing/stipple_brush.h"
#include "forms/counted.h"
#include "output/chart_contents.h"
#include "output/symbol_set.h"
#include "shell/paint_id.h"
#include "shell/symbol_of.h"
#include "storage/load_stipples.h"
#include "storage/stipple_file.h"
#include "support/decimals.h"
#include "support/error.h"
#include "support/list.h"
#include "touchup/clean_up.h"
#include "touchup/markers.h"

namespace vendrel {
namespace {

constexpr const char* kTitle = "Touch Up";

// A kit that keeps all its paints may have more of them than symbols.
std::string SymbolText(int symbol) {
    return symbol <= kSymbolCount ? std::string(1, At(kSymbolCharacters, symbol - 1))
                                  : std::to_string(symbol);
}

std::string StepCaption(const std::string& verb, const std::string& step) {
    return step.empty() ? verb : verb + " " + step;
}

std::string MinuteText(std::filesystem::file_time_type at) {
    const std::time_t seconds =
        std::chrono::system_clock::to_time_t(std::chrono::file_clock::to_sys(at));
    std::tm local{};
    char text[32];
    localtime_r(&seconds, &local);
    return {text, std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", &local)};
}

void RedrawStipples(Workplace& place) {
    EraseToColor(EaselOf(place), kBlack);
    DrawStipplePicture(place);
    SetupMenuItems(place.MainMenu, 3);
    CheckSavedStipples(place);
}

}  // namespace

void TouchUpForm::Form_Load() {
    editor_ = std::make_unique<TouchUp>(place_);
    controls_ = {};
    controls_.Brush.Paint = 1;
    lonerAt_ = {};
    lineFrom_.reset();
    const WorkState& state = *place_.State;
    const int width = std::max(1, place_.Frames->CaptureFrame.Picture.Width());
    areas_.emplace(*editor_, CanvasScale(state.Chosen, width).Enlarged(state.StippleSize),
                   state.Chosen.Limits);
    selection_.emplace(*editor_);
    Touched(Sheet().Bounds());
    Follow();
}

void TouchUpForm::OfferRecovery() {
    ListKept();
    controls_.Kept.Shown = std::ranges::any_of(kept_, &KeptWork::Fits);
}

void TouchUpForm::KeptWork_Click() {
    ListKept();
    controls_.Kept.Shown = true;
}

void TouchUpForm::ListKept() {
    kept_ = ListKeptWork(place_);
    KeptControls& list = controls_.Kept;
    list.Rows.clear();
    for (const KeptWork& work : kept_) {
        list.Rows.push_back({MinuteText(work.At), work.Photo, work.Difficulty});
    }
    const auto first = std::ranges::find(kept_, true, &KeptWork::Fits);
    list.Row =
        kept_.empty() ? -1 : static_cast<int>(first == kept_.end() ? 0 : first - kept_.begin());
    FollowKept();
}

void TouchUpForm::FollowKept() {
    KeptControls& list = controls_.Kept;
    const bool chosen = Holds(kept_, list.Row);
    list.RestoreEnabled = chosen && At(kept_, list.Row).Fits;
    list.ThrowAwayEnabled = chosen;
    list.Hint = !chosen ? "No work is kept."
                : list.RestoreEnabled
                    ? "Restore shows it in the editor; Undo takes it away again."
                    : "To restore it, load the photo " + At(kept_, list.Row).Photo + " at " +
                          At(kept_, list.Row).Difficulty + " and touch it up.";
    controls_.KeptEnabled = !kept_.empty();
}

void TouchUpForm::KeptList_Click(int row) {
    if (Holds(kept_, row)) {
        controls_.Kept.Row = row;
        FollowKept();
    }
}

void TouchUpForm::RestoreKept_Click() {
    if (!controls_.Kept.RestoreEnabled) {
        return;
    }
    KeepPaintInHand([this] { Touched(editor_->Restore(At(kept_, controls_.Kept.Row))); });
    ListKept();
    controls_.Kept.Shown = false;
    const std::string& report = editor_->RestoreReport();
    controls_.Status = "The kept work is back" + (report.empty() ? "" : ": " + report) +
                       ". Undo takes it away again.";
    Follow();
}

void TouchUpForm::ThrowKeptAway_Click() {
    if (!controls_.Kept.ThrowAwayEnabled) {
        return;
    }
    const KeptWork work = At(kept_, controls_.Kept.Row);
    if (place_.Screen.Ask("Kept Work", "Throw the work on " + work.Photo + " (" + work.Difficulty +
                                           ") of " + MinuteText(work.At) + " away for good?")) {
        ThrowAway(work);
        ListKept();
        controls_.Kept.Shown = controls_.Kept.Shown && !kept_.empty();
    }
}

void TouchUpForm::CloseKept_Click() {
    controls_.Kept.Shown = false;
}

void TouchUpForm::PickPaint(CellPos at) {
    PaintList_Click(Sheet().PaintAt(at));
}

std::string TouchUpForm::Describe(CellPos at) const {
    if (!Sheet().Holds(at)) {
        return {};
    }
    const int paint = Sheet().PaintAt(at);
    if (!Sheet().HoldsPaint(paint)) {
        return "Column " + std::to_string(at.X) + ", row " + std::to_string(at.Y);
    }
    const TouchUpPaint& row = controls_.Palette[paint];
    return "Column " + std::to_string(at.X) + ", row " + std::to_string(at.Y) + ":  " + row.Symbol +
           "  " + row.Label;
}

void TouchUpForm::TidyPaints_Click() {
    TidyReport report;
    KeepPaintInHand([&] { report = editor_->TidyPaints(); });
    Touched(Sheet().Bounds());
    controls_.Status = "Tidied the paints.";
    Follow();
    TellReport(report);
}

void TouchUpForm::BlinkLoners_Click() {
    controls_.BlinkLoners = !controls_.BlinkLoners;
    MarkAgain();
}

void TouchUpForm::BlinkPaint_Click() {
    controls_.BlinkPaint = !controls_.BlinkPaint;
    MarkAgain();
}

const std::vector<CellPos>& TouchUpForm::Marked() {
    if (!std::exchange(markedStale_, false)) {
        return marked_;
    }
    const auto rowMajor = [](CellPos a, CellPos b) {
        return std::tie(a.Y, a.X) < std::tie(b.Y, b.X);
    };
    std::vector<CellPos> loners;
    std::vector<CellPos> painted;
    if (controls_.BlinkLoners) {
        loners = FindLoners(Sheet());
    }
    if (controls_.BlinkPaint) {
        painted = FindStipplesOf(Sheet(), controls_.Brush.Paint);
    }
    marked_.clear();
    std::set_union(loners.begin(), loners.end(), painted.begin(), painted.end(),
                   std::back_inserter(marked_), rowMajor);
    return marked_;
}

std::optional<CellPos> TouchUpForm::NextLoner_Click() {
    const std::optional<LonerStep> step = NextLoner(Sheet(), lonerAt_);
    lonerAt_ = step ? step->At : CellPos{};
    FollowLoners();
    return step ? std::optional(step->At) : std::nullopt;
}

void TouchUpForm::RaiseCleanLevel_Click() {
    editor_->RaiseCleanLevel();
    FollowCleanUp();
}

void TouchUpForm::LowerCleanLevel_Click() {
    editor_->LowerCleanLevel();
    FollowCleanUp();
}

void TouchUpForm::CleanUp_Click() {
    Touched(editor_->CleanUp());
    controls_.Status = "Cleaned up.";
    Follow();
}

void TouchUpForm::LoadIt_Click() {
    // Whatever comes of it: a file that is broken leaves what was read until then.
    Touched(Sheet().Bounds());
    controls_.Status.clear();
    try {
        KeepPaintInHand([this] { Touched(editor_->LoadIt_Click()); });
    } catch (const Error&) {
        Follow();
        throw;
    }
    controls_.Status =
        "Loaded " + StippleFilePath(place_.Folder, place_.State, place_.State).filename().string();
    Follow();
}

void TouchUpForm::SaveIt_Click() {
    controls_.Status.clear();
    Touched(selection_->PutDown());
    editor_->SaveIt_Click();
    controls_.Status =
        "Saved " + StippleFilePath(place_.Folder, place_.State, place_.State).filename().string();
    Follow();
}

void TouchUpForm::SaveKit_Click() {
    (void)SaveToKit();
}

bool TouchUpForm::SaveToKit() {
    controls_.Status.clear();
    Touched(selection_->PutDown());
    const bool saved = editor_->SaveBy([this](const EditSheet& sheet, const KitEdits& edits) {
        return kits_ != nullptr && kits_->Save(sheet, edits);
    });
    if (saved) {
        controls_.Status = "Saved " + kits_->File().filename().string();
    }
    Follow();
    return saved;
}

void TouchUpForm::Accept_Click() {
    Touched(selection_->PutDown());
    editor_->Accept();
    Close(true);
}

void TouchUpForm::Close(bool given) {
    // Closed from here on: drawing lets the window's timers run.
    const std::unique_ptr<TouchUp> editor = std::move(editor_);
    place_.Screen.CloseForm(FormId::TouchUp);
    std::exception_ptr trouble;
    try {
        editor->SettleRecovery();
    } catch (const Error&) {
        trouble = std::current_exception();
    }
    if (given) {
        RedrawStipples(place_);
    } else {
        CheckSavedStipples(place_);
    }
    if (trouble) {
        std::rethrow_exception(trouble);
    }
}

void TouchUpForm::TellReport(const TidyReport& report) {
    if (report.Dropped.empty()) {
        return;
    }
    std::string text = "No stipple uses these paints, so they are left out:";
    for (const std::string& name : report.Dropped) {
        text += (&name == &report.Dropped.front() ? " " : ", ") + name;
    }
    text += ".";
    if (!report.Moves.empty()) {
        text +=
            "\n\nOther paints have moved up to new symbols, which sheets printed before do "
            "not show:";
        for (const SymbolMove& move : report.Moves) {
            text += (&move == &report.Moves.front() ? " " : ", ") + move.PaintName + " from " +
                    SymbolText(move.Old) + " to " + SymbolText(move.New);
        }
        text += ".";
    }
    place_.Screen.ShowMessage("Tidy Paints", text);
}

void TouchUpForm::Cancel_Click() {
    if (MayClose()) {
        Close(editor_->Cancel());
    }
}

bool TouchUpForm::MayClose() {
    if (!editor_->HasChanges()) {
        return true;
    }
    const bool buried = editor_->ChangesAreBuried();
    const bool shownIsSaved = editor_->IsSaved();
    const SaveAnswer answer = place_.Screen.AskToSave(
        kTitle, !buried ? "Your changes are not saved. Save them before closing?"
                : shownIsSaved
                    ? "Your changes from before the load are not saved. Save them, instead of "
                      "what was loaded, before closing?"
                    : "Your changes are not saved. Save what is shown before closing? Changes from "
                      "before the load, which Undo would bring back, go in any case.");
    if (answer == SaveAnswer::Save) {
        if (shownIsSaved) {
            Touched(editor_->DigOut());
            Follow();
        }
        return kits_ != nullptr ? SaveToKit() : (SaveIt_Click(), true);
    }
    return answer != SaveAnswer::Cancel;
}

void TouchUpForm::KeepRecovery(EditTime now) {
    // Not thrown on: a message every few seconds would leave no time to save elsewhere.
    try {
        editor_->KeepRecovery(now);
    } catch (const Error& error) {
        controls_.Status = std::string("No recovery file: ") + error.what();
    }
}

CellRect TouchUpForm::TakeDirty() {
    return std::exchange(dirty_, {});
}

void TouchUpForm::Touched(const CellRect& dirty) {
    if (!dirty.Empty()) {
        dirty_.Include({dirty.Left, dirty.Top});
        dirty_.Include({dirty.Right, dirty.Bottom});
        MarkAgain();
    }
}

void TouchUpForm::FollowSteps() {
    if (!Sheet().HoldsPaint(controls_.Brush.Paint)) {
        controls_.Brush.Paint = 1;
    }
    const bool floats = selection_->Floating() != nullptr;
    controls_.UndoEnabled = floats || editor_->CanUndo();
    controls_.RedoEnabled = editor_->CanRedo();
    controls_.UndoCaption = StepCaption("Undo", floats ? "Paste" : editor_->UndoName());
    controls_.RedoCaption = StepCaption("Redo", editor_->RedoName());
    controls_.LoadEnabled = editor_->CanLoad();
    controls_.Unsaved = editor_->HasChanges();
    controls_.Steps = editor_->StepNames();
    controls_.StepsDone = editor_->StepsDone();
    selection_->Follow();
    controls_.Selected = selection_->Text();
    FollowPalette();
}

void TouchUpForm::FollowFigures() {
    if (std::exchange(figuresStale_, false)) {
        areas_->Follow();
        FollowCleanUp();
        FollowLoners();
    }
}

void TouchUpForm::Follow() {
    FollowSteps();
    figuresStale_ = true;
    FollowFigures();
}

void TouchUpForm::FollowPalette() {
    const PaintList& paints = Sheet().Paints();
    controls_.Palette.Resize(Sheet().PaintCount());
    for (int i = 1; i <= Sheet().PaintCount(); ++i) {
        controls_.Palette[i] = {SymbolText(SymbolOf(paints, i)), paints[i].PaintName,
                                PaintLabel(paints[i]), ColorOf(paints[i]), paints[i].CellCount};
    }
    controls_.TidyEnabled = std::ranges::find(paints, 0, &PaintColor::CellCount) != paints.end();
    controls_.Rows = SortedPaints(paints, controls_.Order);
    controls_.AddEnabled = paints.Count() < kMostPaints;
    controls_.RemoveEnabled = paints.Count() > 1;
    FollowChosenPaint();
}

void TouchUpForm::FollowChosenPaint() {
    const int stipples = Sheet().Paints()[controls_.Brush.Paint].CellCount;
    controls_.ChosenPaint = Counted(stipples, "stipple", "stipples") + ", " +
                            Decimals(areas_->Cm2(stipples), 1) + " cm\u00b2";
}

void TouchUpForm::FollowCleanUp() {
    const CleanUpPreview preview = editor_->PreviewCleanUp();
    controls_.CleanLevel = place_.State->CleanLevel;
    controls_.RaiseEnabled = controls_.CleanLevel < kHighestCleanLevel;
    controls_.LowerEnabled = controls_.CleanLevel > kLowestCleanLevel;
    controls_.CleanEnabled = preview.Changes > 0;
    controls_.CleanPreview =
        Counted(preview.Changes, "stipple would change", "stipples would change") + ", " +
        Counted(preview.AreasLeft, "area left", "areas left");
}

void TouchUpForm::FollowLoners() {
    const int left = static_cast<int>(FindLoners(Sheet()).size());
    controls_.Loners = left == 0 ? "No loners" : Counted(left, "loner left", "loners left");
    if (left > 0 && lonerAt_ != CellPos{}) {
        controls_.Loners += "; " + PlaceText(lonerAt_);
    }
}

}  // namespace vendrel
