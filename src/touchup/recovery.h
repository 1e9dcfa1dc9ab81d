#pragma once

#include <chrono>
#include <filesystem>
#include <optional>

#include "shell/workplace.h"

namespace vendrel {

/// A moment of a clock that never goes back; the caller's clock, since nothing here has one.
using EditTime = std::chrono::steady_clock::time_point;

/// "Saved Stipples/<PictureName>-<word>.recovery.stp": a stipple file of the editor's unsaved
/// work on this photo and difficulty, for after a crash. Never taken for the saved grid.
[[nodiscard]] std::filesystem::path RecoveryPath(const Workplace& place);
[[nodiscard]] bool RecoveryExists(const Workplace& place);
/// Keeps the kit's own accepted grid there, whole or not at all. Throws FileError.
void WriteRecoveryOfGrid(const Workplace& place);
/// Does nothing when there is none. Throws FileError when it cannot be removed.
void RemoveRecovery(const Workplace& place);

/// Renames a recovery file that could be neither taken nor given up, so that newer work does not
/// replace it: "... .recovery-old.stp". Throws FileError.
void SetRecoveryAside(const Workplace& place);

/// When the recovery file is due: with the first tick after a change, then at most every five
/// seconds, so that with a tick a second no change waits for ten.
class RecoveryTimer {
  public:
    void NoteChange() { pending_ = true; }
    void NoteKept() { pending_ = false; }
    [[nodiscard]] bool Pending() const { return pending_; }
    /// True when the file should be written now. A write that fails is due again after the pause.
    [[nodiscard]] bool Tick(EditTime now);

  private:
    bool pending_ = false;
    std::optional<EditTime> lastTry_;
};

/// Throws accepted but unsaved work away on purpose, its recovery file too. To be called while the
/// photo and the difficulty are still those of the work.
void DiscardUnsavedWork(const Workplace& place);

/// True when the grid may be replaced: nothing in it is unsaved, or the user agreed to lose it, in
/// which case it is discarded. To be asked before the photo, the difficulty or the grid changes.
[[nodiscard]] bool MayReplaceGrid(const Workplace& place);

}  // namespace vendrel
