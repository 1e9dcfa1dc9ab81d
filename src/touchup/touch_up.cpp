#include "touchup/touch_up.h"

#include <algorithm>
#include <utility>

#include "shell/found_palette.h"
#include "storage/stipple_file.h"
#include "support/error.h"
#include "support/size_text.h"
#include "support/text_file.h"
#include "touchup/clean_up.h"
#include "touchup/sheet_file.h"

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
    // The file of work that was only accepted is still in use, not left over.
    recoveryOffered_ = !state.HasUnsavedWork && HoldLeftRecovery(state, GridFile());
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

CellRect TouchUp::StrokeTo(CellPos at) {
    if (!drawing_) {
        return {};
    }
    DrawStroke(pen_, strokeAt_, at, brush_);
    strokeAt_ = at;
    const CellRect dirty = pen_.TakeDirty();
    if (!dirty.Empty()) {
        timer_.NoteChange();
    }
    return dirty;
}

void TouchUp::EndStroke() {
    drawing_ = false;
    PushStroke(kBrushName);
}

void TouchUp::PushStroke(std::string name) {
    if (pen_.Drew()) {
        history_.Push({std::move(name), pen_.TakeChanges()});
        timer_.NoteChange();
    }
}

CellRect TouchUp::Fill(CellPos at, int paint) {
    EndStroke();
    FillArea(pen_, at, paint);
    PushStroke("Fill");
    return pen_.TakeDirty();
}

CellRect TouchUp::Replace(int from, int to) {
    EndStroke();
    ReplacePaint(pen_, from, to);
    PushStroke("Replace Paint");
    return pen_.TakeDirty();
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
    const std::vector<CellChange> changes = PlanCleanUp(sheet_, place_.State->CleanLevel);
    return {static_cast<int>(changes.size()), CountAreasAfter(sheet_, changes)};
}

CellRect TouchUp::CleanUp() {
    EndStroke();
    for (const CellChange& change : PlanCleanUp(sheet_, place_.State->CleanLevel)) {
        pen_.Paint({change.X, change.Y}, change.To);
    }
    PushStroke("Clean Up");
    return pen_.TakeDirty();
}

CellRect TouchUp::Undo() {
    EndStroke();
    return AfterStep(history_.Undo(sheet_));
}

CellRect TouchUp::Redo() {
    EndStroke();
    return AfterStep(history_.Redo(sheet_));
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

void TouchUp::SaveIt_Click() {
    EndStroke();
    RefuseFlaw(sheet_, "The stipples cannot be saved");
    WriteSheet(GridFile(), sheet_, place_.State->FinalColors);
    place_.MainMenu[MenuId::LoadStipples].Enabled = true;
    savedId_ = history_.StateId();
    place_.State->HasUnsavedWork = unsavedAtOpening_ && savedId_ != 0;
    timer_.NoteKept();
    recoveryOffered_ = false;
    RemoveRecovery(place_.State);
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
    PushLoad("Load");
    {
        const RecountAtEnd recount(sheet_);
        ReadIntoSheet(reader, sheet_);
    }
    savedId_ = history_.StateId();
    ShowFinalColors();
    return {1, 1, std::max(before.Right, sheet_.Across()), std::max(before.Bottom, sheet_.Down())};
}

void TouchUp::PushLoad(std::string name) {
    // What a broken file leaves cannot be kept, so the work until here is kept first.
    if (timer_.Pending()) {
        WriteRecovery();
    }
    history_.Push({std::move(name), sheet_.Copy()});
    timer_.NoteChange();
}

bool TouchUp::HasChanges() const {
    return pen_.Drew() || (history_.StateId() != 0 && !IsSaved());
}

AcceptReport TouchUp::Accept() {
    EndStroke();
    WorkState& state = place_.State;
    RefuseFlaw(sheet_, "The stipples cannot be accepted");
    const Grid<StippleCell>& photo = state.Stipples;
    if (sheet_.Across() != photo.Across() || sheet_.Down() != photo.Down()) {
        throw Error("The loaded grid has " + SizeText(sheet_.Across(), sheet_.Down()) +
                    " stipples, but the photo has " + SizeText(photo.Across(), photo.Down()) +
                    " stipples. Take the load back with Undo; or save it, close the editor and "
                    "choose Picture, Load Stipple Picture, which keeps the grid's shape.");
    }
    state.HasUnsavedWork = !IsSaved() && (unsavedAtOpening_ || history_.StateId() != 0);
    return TakeOverCopies(state, state, state, state);
}

void TouchUp::Cancel() {
    WorkState& state = place_.State;
    state.FinalColors = finalAtOpening_;
    SetFoundColors(state, foundAtOpening_);
    state.EditStipples = {};
    state.HasUnsavedWork = unsavedAtOpening_ && savedId_ != 0;
    ShowFinalColors();
}

CellRect TouchUp::TakeRecovery() {
    EndStroke();
    WorkState& state = place_.State;
    const std::filesystem::path path = RecoveryPath(state, GridFile());
    const std::string text = ReadTextFile(path);
    StippleFileReader reader(text, path);
    const StippleHeader header = reader.Header();
    if (header.Across != state.CellsAcross || header.Down != state.CellsDown) {
        throw FormatError(
            path, 1,
            "the work was done on " + SizeText(header.Across, header.Down) +
                " stipples, but the photo has " + SizeText(state.CellsAcross, state.CellsDown) +
                " stipples. Take up the saved stipples of that shape first (Picture, Load Stipple "
                "Picture), or give the work up.");
    }
    SheetContents found{reader.ReadPalette(),
                        {},
                        Grid<StippleCell>(header.Across, header.Down),
                        {header.PaintCount, header.Across, header.Down},
                        header.FinalColors};
    for (int y = 1; y <= header.Down; ++y) {
        reader.ReadRow(found.EditStipples, y, header.Across);
    }
    PushLoad("Recover");
    sheet_.Exchange(found);
    sheet_.Recount();
    recoveryOffered_ = false;
    ShowFinalColors();
    return sheet_.Bounds();
}

void TouchUp::DiscardRecovery() {
    recoveryOffered_ = false;
    RemoveRecovery(place_.State);
}

void TouchUp::KeepRecovery(EditTime now) {
    if (timer_.Tick(now)) {
        WriteRecovery();
    }
}

void TouchUp::KeepRecoveryNow() {
    if (HasChanges()) {
        WriteRecovery();
    }
}

void TouchUp::WriteRecovery() {
    if (!sheet_.Flaw().empty()) {
        return;
    }
    MakeRoomForRecovery();
    WriteSheet(HoldRecovery(place_.State, GridFile()), sheet_, place_.State->FinalColors);
    timer_.NoteKept();
}

void TouchUp::MakeRoomForRecovery() {
    if (recoveryOffered_) {
        SetRecoveryAside(place_.State, GridFile());
        recoveryOffered_ = false;
    }
}

void TouchUp::SettleRecovery() {
    if (place_.State->HasUnsavedWork) {
        MakeRoomForRecovery();
        WriteRecoveryOfGrid(place_);
        return;
    }
    if (!recoveryOffered_) {
        RemoveRecovery(place_.State);
    }
    place_.State->Recovery.reset();
}

}  // namespace vendrel
