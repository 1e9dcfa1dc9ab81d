#include "touchup/recovery.h"

#include <string>
#include <system_error>

#include "storage/stipple_file.h"
#include "support/error.h"

namespace vendrel {
namespace {

constexpr std::chrono::seconds kRecoveryPause{5};

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
    const std::filesystem::path file = RecoveryPath(place);
    std::error_code failure;
    std::filesystem::remove(file, failure);
    if (failure) {
        throw FileError(file, "the recovery file cannot be removed (" + failure.message() +
                                  "). Delete it yourself, or it will be offered again.");
    }
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

void DiscardUnsavedWork(const Workplace& place) {
    if (place.State.HasUnsavedWork) {
        place.State.HasUnsavedWork = false;
        RemoveRecovery(place);
    }
}

bool MayReplaceGrid(const Workplace& place) {
    if (!place.State.HasUnsavedWork) {
        return true;
    }
    if (!place.Screen.Ask("Unsaved Stipples", "The touched-up stipples of " +
                                                  place.State.PictureName +
                                                  " are not saved. Go on and lose them?")) {
        return false;
    }
    DiscardUnsavedWork(place);
    return true;
}

}  // namespace vendrel
