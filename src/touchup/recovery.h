#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "shell/workplace.h"

namespace vendrel {

/// A moment of a clock that never goes back; the caller's clock, since nothing here has one.
using EditTime = std::chrono::steady_clock::time_point;

/// A stipple file of the editor's unsaved work on this photo and difficulty, for after a crash:
/// "Saved Stipples/<PictureName>-<word>.recovery.stp", or "... .recovery-2.stp" and so on beside
/// those that are there already. Never taken for the saved grid, the StippleFilePath `grid`, beside
/// which it lies. This is the one held in Recovery, else the first.
[[nodiscard]] std::filesystem::path RecoveryPath(const UnsavedWork& unsaved,
                                                 const std::filesystem::path& grid);
/// The file to keep unsaved work in; holds a new one where none is held yet, so that nothing that
/// was kept before is ever written over.
[[nodiscard]] std::filesystem::path HoldRecovery(UnsavedWork& unsaved,
                                                 const std::filesystem::path& grid);
/// Whether a recovery file is of the photo and difficulty whose saved grid is `grid`.
[[nodiscard]] bool IsRecoveryOf(const std::filesystem::path& recovery,
                                const std::filesystem::path& grid);
/// Keeps the kit's own accepted grid there, whole or not at all. Throws FileError.
void WriteRecoveryOfGrid(Workplace& place);
/// Removes the one held, if any. Throws FileError when it cannot be removed.
void RemoveRecovery(const UnsavedWork& unsaved);
void RemoveRecovery(const std::filesystem::path& recovery);

/// Work that a program left behind unsaved.
struct KeptWork {
    std::filesystem::path File;
    std::string Photo;
    std::string Difficulty;              // its word
    std::filesystem::file_time_type At;  // of the last change that was kept
    bool Fits = false;                   // made on the photo and difficulty at work now

    bool operator==(const KeptWork&) const = default;
};

/// The work left of all photos, the newest first; that of living programs, this one included, is
/// none of it. Throws FileError when the folder cannot be read.
[[nodiscard]] std::vector<KeptWork> ListKeptWork(const Workplace& place);
/// Removes it for good. Throws FileError when it cannot be removed, Error when another program has
/// taken it up meanwhile.
void ThrowAway(const KeptWork& work);
/// Holds it against other programs. Throws Error when one has taken it up meanwhile.
[[nodiscard]] std::shared_ptr<const HeldFile> HoldKept(const KeptWork& work);

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

}  // namespace vendrel
