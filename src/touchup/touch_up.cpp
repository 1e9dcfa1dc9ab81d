#include "touchup/touch_up.h"

#include <algorithm>
#include <utility>

#include "edits/kit_base.h"
#include "shell/found_palette.h"
#include "storage/load_stipples.h"
#include "storage/stipple_file.h"
#include "support/error.h"
#include "support/text_file.h"
#include "touchup/acceptance.h"
#include "touchup/clean_up.h"
#include "touchup/restoring.h"
#include "touchup/sheet_file.h"
#include "touchup/unsaved_work.h"

namespace vendrel {
namespace {

// However a load ends, the counts on screen are those of the stipples.
class RecountAtEnd {
  public:
    explicit RecountAtEnd(EditSheet& sheet) : sheet_(sheet) {}
    ~RecountAtEnd() { sheet_.Recount(); }
    RecountAtEnd(const RecountAtEnd&) = delete;
    RecountAtEnd& operator=(const RecountAtEnd&) = delete;

  private:
    EditSheet& sheet_;
};

CellChange ChangeOf(CellPos at, int from, int to) {
    return {static_cast<std::int16_t>(at.X), static_cast<std::int16_t>(at.Y),
            static_cast<std::int16_t>(from), static_cast<std::int16_t>(to)};
}

void RefuseFlaw(const EditSheet& sheet, const char* refusal) {
    const std::string flaw = sheet.Flaw();
    if (!flaw.empty()) {
        throw Error(refusal + (" because a load broke off: " + flaw) +
                    ". Take the load back with Undo first.");
    }
}

}  // namespace

TouchUp::TouchUp(Workplace& place)
    : place_(place), sheet_(*place.State, *place.State, *place.State) {
    WorkState& state = place_.State;
    if (state.CellsAcross < 1 || state.CellsDown < 1 || state.Stipples.Across() < 1) {
        throw Error("There are no stipples to touch up. Change the photo to stipples first.");
    }
    foundAtOpening_ = state.FoundColors;
    finalAtOpening_ = state.FinalColors;
    wantedAtOpening_ = state.Chosen.FinalPaints;
    unsavedAtOpening_ = state.HasUnsavedWork;
    if (!state.HasUnsavedWork) {
        state.Recovery.reset();  // of another photo, perhaps
    }
    RequireBase(state, state, state, state);
    atOpening_ = state;
    sheet_.Open(state, state);
}

std::filesystem::path TouchUp::GridFile() const {
    return StippleFilePath(place_.Folder, place_.State, place_.State);
}

CellRect TouchUp::BeginStroke(CellPos at, EditBrush brush) {
    EndStroke();
    brush_ = brush;
    strokeAt_ = at;
    drawing_ = true;
    return StrokeTo(at);
}

CellRect TouchUp::BeginErasing(CellPos at, EditBrush brush) {
    EndStroke();
    brush_ = brush;
    erasing_ = true;
    strokeAt_ = at;
    drawing_ = true;
    return StrokeTo(at);
}

AreaMerge TouchUp::PreviewAreaMerge(int smallest) const {
    AreaMerge plan = PlanAreaMerge(sheet_, smallest);
    if (pen_.KeepsWithin()) {
        LeaveOutWhatMayNotBePainted(plan.Changes);
        plan.AreasLeft = CountPrintedAfter(sheet_, plan.Changes);
    }
    return plan;
}

CellRect TouchUp::MergeAreas(int smallest) {
    return Edit("Merge Areas", EditIntent::Neighbors, [&](EditPen& pen) {
        for (const CellChange& change : PlanAreaMerge(sheet_, smallest).Changes) {
            pen.Paint({change.X, change.Y}, change.To);
        }
    });
}

void TouchUp::LeaveOutWhatMayNotBePainted(std::vector<CellChange>& changes) const {
    std::erase_if(changes, [this](const CellChange& change) {
        return !pen_.MayPaint({change.X, change.Y});
    });
}

CellRect TouchUp::StrokeTo(CellPos at) {
    if (!drawing_) {
        return {};
    }
    if (erasing_) {
        EraseStroke(pen_, strokeAt_, at, brush_, Base());
    } else {
        DrawStroke(pen_, strokeAt_, at, brush_);
    }
    strokeAt_ = at;
    const CellRect dirty = pen_.TakeDirty();
    if (!dirty.Empty()) {
        timer_.NoteChange();
    }
    return dirty;
}

void TouchUp::EndStroke() {
    drawing_ = false;
    PushStroke(StrokeName(), erasing_ ? EditIntent::Erase : EditIntent::Paint);
    erasing_ = false;
}

CellRect TouchUp::Edit(const std::string& name, EditIntent intent,
                       const std::function<void(EditPen&)>& work) {
    EndStroke();
    work(pen_);
    PushStroke(name, intent);
    return pen_.TakeDirty();
}

void TouchUp::ChangePalette(const std::string& name, EditIntent intent, SheetContents sheet) {
    EndStroke();
    RefuseFlaw(sheet_, "The paints cannot be changed");
    history_.Push({name, sheet_.Copy(), intent});
    sheet_.Exchange(sheet);
    sheet_.Recount();
    timer_.NoteChange();
}

void TouchUp::KeepWithin(std::shared_ptr<const CellSet> cells) {
    EndStroke();
    pen_.KeepWithin(std::move(cells));
}

void TouchUp::PushStroke(std::string name, EditIntent intent) {
    std::vector<CellChange> changes =
        intent == EditIntent::Paint ? pen_.TakeTouched() : pen_.TakeChanges();
    if (!changes.empty()) {
        history_.Push({std::move(name), std::move(changes), intent});
        timer_.NoteChange();
    }
}

CellRect TouchUp::Fill(CellPos at, int paint) {
    return Edit("Fill", EditIntent::Paint, [&](EditPen& pen) { FillArea(pen, at, paint); });
}

CellRect TouchUp::Replace(int from, int to) {
    // Within a selection it says nothing of the paint elsewhere.
    const EditIntent intent = pen_.KeepsWithin() ? EditIntent::Paint : EditIntent::Exchange;
    return Edit("Replace Paint", intent, [&](EditPen& pen) { ReplacePaint(pen, from, to); });
}

// Step by step, so that a stroke late in the evening takes no longer than the first.
const BaseView& TouchUp::Base() const {
    const int before = std::exchange(baseId_, history_.StateId());
    if (before != baseId_) {
        const std::span<const EditStep> done = history_.DoneSteps();
        const int last = done.size() > 1 ? done[done.size() - 2].Id : 0;
        if (before != last || done.empty() || !base_.Continue(done.back())) {
            base_ = BaseView(atOpening_, done, sheet_);
        }
    }
    return base_;
}

CellRect TouchUp::Erase(std::span<const CellPos> cells, const std::string& name) {
    EndStroke();
    std::vector<CellChange> changes;
    CellRect dirty;
    for (const CellPos at : cells) {
        // One that was painted as its base is, is as free afterwards.
        if (sheet_.Holds(at) && sheet_.HoldsPaint(BasePaintAt(at)) &&
            (IsEdited(at) || BasePaintAt(at) != sheet_.PaintAt(at))) {
            changes.push_back(ChangeOf(at, sheet_.PaintAt(at), BasePaintAt(at)));
            dirty.Include(at);
        }
    }
    if (!changes.empty()) {
        DoChanges(sheet_, changes);
        history_.Push({name, std::move(changes), EditIntent::Erase});
        timer_.NoteChange();
    }
    return dirty;
}

void TouchUp::RaiseCleanLevel() {
    int& level = place_.State->CleanLevel;
    level = std::clamp(level + 1, kLowestCleanLevel, kHighestCleanLevel);
}

void TouchUp::LowerCleanLevel() {
    int& level = place_.State->CleanLevel;
    level = std::clamp(level - 1, kLowestCleanLevel, kHighestCleanLevel);
}

CleanUpPreview TouchUp::PreviewCleanUp() const {
    std::vector<CellChange> changes = PlanCleanUp(sheet_, place_.State->CleanLevel);
    LeaveOutWhatMayNotBePainted(changes);
    return {static_cast<int>(changes.size()), CountPrintedAfter(sheet_, changes)};
}

CellRect TouchUp::CleanUp() {
    return Edit("Clean Up", EditIntent::Neighbors, [this](EditPen& pen) {
        for (const CellChange& change : PlanCleanUp(sheet_, place_.State->CleanLevel)) {
            pen.Paint({change.X, change.Y}, change.To);
        }
    });
}

CellRect TouchUp::Undo() {
    EndStroke();
    return AfterStep(history_.Undo(sheet_));
}

CellRect TouchUp::Redo() {
    EndStroke();
    return AfterStep(history_.Redo(sheet_));
}

CellRect TouchUp::GoToStep(int done) {
    EndStroke();
    CellRect dirty;
    const auto include = [&dirty](const CellRect& more) {
        if (!more.Empty()) {
            dirty.Include({more.Left, more.Top});
            dirty.Include({more.Right, more.Bottom});
        }
    };
    while (history_.Done() > done && history_.CanUndo()) {
        include(history_.Undo(sheet_));
    }
    while (history_.Done() < done && history_.CanRedo()) {
        include(history_.Redo(sheet_));
    }
    return AfterStep(dirty);
}

CellRect TouchUp::AfterStep(CellRect dirty) {
    if (!dirty.Empty()) {
        timer_.NoteChange();
        ShowFinalColors();
    }
    return dirty;
}

// The kit itself may use fewer paints than its menu asks for, as with a small template; only a
// load or a recovery brings another count.
void TouchUp::ShowFinalColors() {
    const int finalColors = place_.State->FinalColors;
    SetColorChecks(place_.State->Chosen,
                   finalColors == finalAtOpening_ ? wantedAtOpening_ : finalColors);
}

TidyReport TouchUp::TidyPaints() {
    EndStroke();
    RefuseFlaw(sheet_, "The paints cannot be tidied");
    TidyReport report;
    SheetContents tidied = WithoutUnusedPaints(sheet_, report);
    if (!report.Dropped.empty()) {
        history_.Push({"Tidy Paints", sheet_.Copy()});
        sheet_.Exchange(tidied);
        timer_.NoteChange();
    }
    return report;
}

void TouchUp::SaveIt_Click() {
    SaveBy([this](const EditSheet& sheet, const KitEdits& /*edits*/) {
        WriteSheet(GridFile(), sheet, place_.State->FinalColors);
        return true;
    });
    KitIsSaved(place_);
}

bool TouchUp::SaveBy(const SaveSheet& save) {
    EndStroke();
    RefuseFlaw(sheet_, "The stipples cannot be saved");
    RecordedEdits recorded = Recorded();
    if (!save(sheet_, recorded.Edits)) {
        return false;
    }
    savedId_ = history_.StateId();
    saved_ = {sheet_.Copy(), savedId_, std::move(recorded)};
    for (Replacement& replacement : replacements_) {
        replacement.Buries = false;  // this is what the painter wants
    }
    timer_.NoteKept();
    RemoveRestored();
    WorkIsSaved(place_.State);
    return true;
}

bool TouchUp::CanLoad() const {
    return StippleFileExists(place_.Folder, place_.State, place_.State);
}

CellRect TouchUp::LoadIt_Click() {
    EndStroke();
    const std::filesystem::path path = GridFile();
    const std::string text = ReadTextFile(path);
    RequireFit(text, path, sheet_);
    StippleFileReader reader(text, path);
    const CellRect before = sheet_.Bounds();
    PushReplacement("Load", EditIntent::NewBase);
    {
        const RecountAtEnd recount(sheet_);
        ReadIntoSheet(reader, sheet_);
    }
    savedId_ = history_.StateId();
    ShowFinalColors();
    return {1, 1, std::max(before.Right, sheet_.Across()), std::max(before.Bottom, sheet_.Down())};
}

void TouchUp::PushReplacement(std::string name, EditIntent intent,
                              std::shared_ptr<const EditLayer> layer) {
    // What a broken file leaves cannot be kept, so the work until here is kept first.
    if (timer_.Pending()) {
        WriteRecovery();
    }
    const bool buries = !IsSaved();
    history_.Push({std::move(name), sheet_.Copy(), intent, std::move(layer)});
    replacements_.push_back({history_.StateId(), buries, nullptr});
    timer_.NoteChange();
}

bool TouchUp::ChangesAreBuried() const {
    return std::ranges::any_of(replacements_, [this](const Replacement& replacement) {
        return replacement.Buries && history_.IsDone(replacement.Step);
    });
}

CellRect TouchUp::DigOut() {
    EndStroke();
    CellRect dirty;
    for (auto last = replacements_.rbegin(); last != replacements_.rend(); ++last) {
        if (last->Buries && history_.IsDone(last->Step)) {
            while (history_.IsDone(last->Step)) {
                dirty = Undo();
            }
            break;
        }
    }
    return dirty;
}

void TouchUp::Accept() {
    EndStroke();
    WorkState& state = place_.State;
    RefuseFlaw(sheet_, "The stipples cannot be accepted");
    ShapePhotoBy(place_, {sheet_.Across(), sheet_.Down()});
    state.HasUnsavedWork = !InSavedGrid() && (unsavedAtOpening_ || history_.StateId() != 0);
    accepted_ = true;
    PutDown(Recorded());
    TakeOverCopies(state, state, state, state);
}

RecordedEdits TouchUp::Recorded() const {
    return RecordEdits(atOpening_, history_.DoneSteps(), sheet_);
}

void TouchUp::PutDown(RecordedEdits recorded) {
    WorkState& state = place_.State;
    static_cast<KitEdits&>(state) = std::move(recorded.Edits);
    if (recorded.NewBase) {
        static_cast<EditPast&>(state) = {};
    }
    for (EditMoment& moment : recorded.Moments) {
        AddMoment(state, std::move(moment));
    }
    state.LaidOn.clear();
}

bool TouchUp::Cancel() {
    WorkState& state = place_.State;
    const bool given = GiveSavedToKit();
    if (!given) {
        state.FinalColors = finalAtOpening_;
        SetFoundColors(state, foundAtOpening_);
        state.EditStipples = {};
    }
    state.HasUnsavedWork = unsavedAtOpening_ && !saved_;
    ShowFinalColors();
    return given;
}

bool TouchUp::GiveSavedToKit() {
    if (!saved_ || saved_->Step == 0) {
        return false;
    }
    const SheetSizes& size = saved_->Contents.Announced;
    ShapePhotoBy(place_, {size.Across, size.Down});
    sheet_.Exchange(saved_->Contents);
    PutDown(std::move(saved_->Edits));
    WorkState& state = place_.State;
    TakeOverCopies(state, state, state, state);
    return true;
}

CellRect TouchUp::Restore(const KeptWork& work) {
    EndStroke();
    const auto held = HoldKept(work);
    WorkState& state = place_.State;
    LoadedGrid kept =
        ReadGridAndEdits(work.File, state.StippleSize * place_.Screen.Screen().Twips.X);
    RestoredWork restored = RestoreOver(EditsUntilNow(atOpening_, history_.DoneSteps(), sheet_),
                                        std::move(kept), state.FinalColors);
    restoreReport_ = std::move(restored.Report);
    const CellRect before = sheet_.Bounds();
    PushReplacement("Restore", restored.Intent, std::move(restored.Layer));
    replacements_.back().Restored = held;
    sheet_.Exchange(restored.Contents);
    sheet_.Recount();
    ShowFinalColors();
    return {1, 1, std::max(before.Right, sheet_.Across()), std::max(before.Bottom, sheet_.Down())};
}

void TouchUp::RemoveRestored() {
    const auto last =
        std::find_if(replacements_.rbegin(), replacements_.rend(),
                     [this](const Replacement& r) { return history_.IsDone(r.Step); });
    if (last != replacements_.rend() && last->Restored) {
        RemoveRecovery(std::exchange(last->Restored, nullptr)->Path());
    }
}

void TouchUp::KeepRecovery(EditTime now) {
    // While the saved grid is shown, the file keeps what a load replaced.
    if (!InSavedGrid() && timer_.Tick(now)) {
        WriteRecovery();
    }
}

void TouchUp::KeepRecoveryNow() {
    if (!InSavedGrid() && HasChanges()) {
        WriteRecovery();
    }
}

void TouchUp::WriteRecovery() {
    if (sheet_.Flaw().empty()) {
        const KitEdits edits = EditsUntilNow(atOpening_, history_.DoneSteps(), sheet_);
        WriteSheet(HoldRecovery(place_.State, GridFile()), sheet_, place_.State->FinalColors,
                   edits.Converted ? &edits.Edits : nullptr);
        timer_.NoteKept();
    }
}

void TouchUp::SettleRecovery() {
    if (place_.State->HasUnsavedWork) {
        WriteRecoveryOfGrid(place_);
    } else {
        RemoveRecovery(place_.State);
        place_.State->Recovery.reset();
    }
    if (accepted_) {
        RemoveRestored();
    }
}

}  // namespace vendrel
