#include "touchup/recovery.h"

#include <string>
#include <system_error>
#include <utility>

#include "storage/stipple_file.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/folders.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds kRecoveryPause{5};
constexpr int kMostLeft = 9;  // nobody edits a photo in more windows at once

fs::path NumberedPath(fs::path grid, int number) {
    return grid.replace_extension(".recovery" + (number == 1 ? "" : "-" + std::to_string(number)) +
                                  ".stp");
}

// Offered again after a power cut, it would take the painter back behind the saved grid.
void Remove(const fs::path& recovery) {
    std::error_code failure;
    if (fs::remove(recovery, failure)) {
        failure = SyncFolder(recovery.parent_path());
    }
    if (failure) {
        throw FileError(recovery, "the recovery file cannot be removed (" + failure.message() +
                                      "). Delete it yourself, or it will be offered again.");
    }
}

}  // namespace

std::filesystem::path RecoveryPath(const UnsavedWork& unsaved, const std::filesystem::path& grid) {
    return unsaved.Recovery ? unsaved.Recovery->Path() : NumberedPath(grid, 1);
}

bool HoldLeftRecovery(UnsavedWork& unsaved, const std::filesystem::path& grid) {
    std::shared_ptr<const HeldFile>& held = unsaved.Recovery;
    held.reset();
    for (int number = 1; number <= kMostLeft && !held; ++number) {
        const fs::path path = NumberedPath(grid, number);
        if (IsFile(path)) {
            held = HeldFile::Hold(path);
        }
    }
    return held != nullptr;
}

std::filesystem::path HoldRecovery(UnsavedWork& unsaved, const std::filesystem::path& grid) {
    std::shared_ptr<const HeldFile>& held = unsaved.Recovery;
    // The lock lies beside the file. What keeps the folder from being made, the writing tells.
    std::error_code toldLater;
    fs::create_directories(NumberedPath(grid, 1).parent_path(), toldLater);
    for (int number = 1; !held; ++number) {
        const fs::path path = NumberedPath(grid, number);
        if (!IsFile(path)) {
            held = HeldFile::Hold(path);
        }
    }
    return held->Path();
}

void WriteRecoveryOfGrid(Workplace& place) {
    WorkState& state = place.State;
    const fs::path file = HoldRecovery(state, StippleFilePath(place.Folder, state, state));
    WriteStippleFile(file, {state.PaintColors, state.Stipples, state.CellsAcross, state.CellsDown,
                            state.FinalColors});
}

void RemoveRecovery(const UnsavedWork& unsaved) {
    if (unsaved.Recovery) {
        Remove(unsaved.Recovery->Path());
    }
}

void SetRecoveryAside(const UnsavedWork& unsaved, const std::filesystem::path& grid) {
    const fs::path file = RecoveryPath(unsaved, grid);
    std::error_code failure;
    fs::rename(file, file.parent_path() / (file.stem().string() + "-old.stp"), failure);
    if (failure) {
        throw FileError(file, "the recovery file cannot be renamed (" + failure.message() +
                                  "). Check that you may write there.");
    }
}

bool RecoveryTimer::Tick(EditTime now) {
    if (!pending_ || (lastTry_ && now - *lastTry_ < kRecoveryPause)) {
        return false;
    }
    lastTry_ = now;
    return true;
}

GridReplacement::GridReplacement(Workplace& place) : place_(place) {
    const WorkState& state = place_.State;
    if (!state.HasUnsavedWork) {
        return;
    }
    allowed_ =
        place_.Screen.Ask("Unsaved Stipples", "The touched-up stipples of " + state.PictureName +
                                                  " are not saved. Go on and lose them?");
    if (allowed_) {
        unsaved_ = {state.Recovery, state.PictureName, state.StippleSize, state.Stipples,
                    state.PaintColors};
    }
}

GridReplacement::~GridReplacement() {
    // Marked as unsaved, whatever took its place would be kept over the work's recovery file.
    if (unsaved_ && !StillInKit()) {
        place_.State->HasUnsavedWork = false;
        place_.State->Recovery.reset();
    }
}

bool GridReplacement::StillInKit() const {
    const WorkState& state = place_.State;
    return state.PictureName == unsaved_->PictureName &&
           state.StippleSize == unsaved_->StippleSize && state.Stipples == unsaved_->Stipples &&
           state.PaintColors == unsaved_->Paints;
}

void GridReplacement::Done() {
    if (unsaved_) {
        const auto recovery = std::exchange(unsaved_, std::nullopt)->Recovery;
        place_.State->HasUnsavedWork = false;
        place_.State->Recovery.reset();
        if (recovery) {
            Remove(recovery->Path());
        }
    }
}

bool MayReplaceGrid(Workplace& place) {
    GridReplacement replacement(place);
    if (replacement.Allowed()) {
        replacement.Done();
    }
    return replacement.Allowed();
}

}  // namespace vendrel
