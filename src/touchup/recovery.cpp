#include "touchup/recovery.h"

#include <string>
#include <system_error>
#include <utility>

#include "storage/stipple_file.h"
#include "support/error.h"

namespace vendrel {
namespace {

constexpr std::chrono::seconds kRecoveryPause{5};

void Remove(const std::filesystem::path& recovery) {
    std::error_code failure;
    std::filesystem::remove(recovery, failure);
    if (failure) {
        throw FileError(recovery, "the recovery file cannot be removed (" + failure.message() +
                                      "). Delete it yourself, or it will be offered again.");
    }
}

}  // namespace

std::filesystem::path RecoveryPath(const Workplace& place) {
    return StippleFilePath(place).replace_extension(".recovery.stp");
}

bool RecoveryExists(const Workplace& place) {
    std::error_code unreadable;
    return std::filesystem::is_regular_file(RecoveryPath(place), unreadable);
}

void WriteRecoveryOfGrid(const Workplace& place) {
    const WorkState& state = place.State;
    WriteStippleFile(RecoveryPath(place), {state.PaintColors, state.Stipples, state.CellsAcross,
                                           state.CellsDown, state.FinalColors});
}

void RemoveRecovery(const Workplace& place) {
    Remove(RecoveryPath(place));
}

void SetRecoveryAside(const Workplace& place) {
    const std::filesystem::path file = RecoveryPath(place);
    std::error_code failure;
    std::filesystem::rename(file, StippleFilePath(place).replace_extension(".recovery-old.stp"),
                            failure);
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

GridReplacement::GridReplacement(const Workplace& place) : place_(place) {
    const WorkState& state = place_.State;
    if (!state.HasUnsavedWork) {
        return;
    }
    allowed_ =
        place_.Screen.Ask("Unsaved Stipples", "The touched-up stipples of " + state.PictureName +
                                                  " are not saved. Go on and lose them?");
    if (allowed_) {
        unsaved_ = {RecoveryPath(place_), state.PictureName, state.StippleSize, state.Stipples,
                    state.PaintColors};
    }
}

GridReplacement::~GridReplacement() {
    // Marked as unsaved, whatever took its place would be kept over the work's recovery file.
    if (unsaved_ && !StillInKit()) {
        place_.State.HasUnsavedWork = false;
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
        const std::filesystem::path recovery = std::exchange(unsaved_, std::nullopt)->Recovery;
        place_.State.HasUnsavedWork = false;
        Remove(recovery);
    }
}

bool MayReplaceGrid(const Workplace& place) {
    GridReplacement replacement(place);
    if (replacement.Allowed()) {
        replacement.Done();
    }
    return replacement.Allowed();
}

}  // namespace vendrel
