#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "shell/workplace.h"

namespace vendrel {

/// A moment of a clock that never goes back; the caller's clock, since nothing here has one.
using EditTime = std::chrono::steady_clock::time_point;

/// A stipple file of the editor's unsaved work on this photo and difficulty, for after a crash:
/// "Saved Stipples/<PictureName>-<word>.recovery.stp", or "... .recovery-2.stp" and so on for
/// programs that edit the same photo at once. Never taken for the saved grid, the StippleFilePath
/// `grid`, beside which it lies. This is the one held in Recovery, else the first.
[[nodiscard]] std::filesystem::path RecoveryPath(const UnsavedWork& unsaved,
                                                 const std::filesystem::path& grid);
/// Lets go of what was held and holds a recovery file that a program left behind, if there is one;
/// that of a living program is none.
[[nodiscard]] bool HoldLeftRecovery(UnsavedWork& unsaved, const std::filesystem::path& grid);
/// The file to keep unsaved work in; holds a new one where none is held yet.
[[nodiscard]] std::filesystem::path HoldRecovery(UnsavedWork& unsaved,
                                                 const std::filesystem::path& grid);
/// Keeps the kit's own accepted grid there, whole or not at all. Throws FileError.
void WriteRecoveryOfGrid(Workplace& place);
/// Removes the one held, if any. Throws FileError when it cannot be removed.
void RemoveRecovery(const UnsavedWork& unsaved);

/// Renames a recovery file that could be neither taken nor given up, so that newer work does not
/// replace it: "... .recovery-old.stp". Throws FileError.
void SetRecoveryAside(const UnsavedWork& unsaved, const std::filesystem::path& grid);

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

/// A step that replaces the kit's grid, from its question to its success. To be made before the
/// photo, the difficulty or the grid changes: what is unsaved goes by the old ones.
class GridReplacement {
  public:
    /// Asks when the grid holds accepted but unsaved work; "yes" does not lose it yet.
    explicit GridReplacement(Workplace& place);
    /// A step that broke off before Done has lost nothing: work that is no longer in the kit is
    /// offered again from its recovery file.
    ~GridReplacement();
    GridReplacement(const GridReplacement&) = delete;
    GridReplacement& operator=(const GridReplacement&) = delete;

    /// True when nothing is unsaved, or the user agreed to lose it.
    [[nodiscard]] bool Allowed() const { return allowed_; }
    /// The step succeeded: the unsaved work goes, its recovery file too. Throws FileError when
    /// that cannot be removed.
    void Done();

  private:
    struct Work {
        std::shared_ptr<const HeldFile> Recovery;
        std::string PictureName;
        int StippleSize = 0;
        Grid<StippleCell> Stipples;
        PaintList Paints;
    };

    [[nodiscard]] bool StillInKit() const;

    Workplace& place_;
    std::optional<Work> unsaved_;
    bool allowed_ = true;
};

/// Asks, and gives the unsaved work up at once: for the end of the program. True when nothing is
/// left to lose.
[[nodiscard]] bool MayReplaceGrid(Workplace& place);

}  // namespace vendrel
