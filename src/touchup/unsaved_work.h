#pragma once

#include <memory>
#include <optional>
#include <string>

#include "shell/workplace.h"
#include "touchup/kit_keeper.h"

namespace vendrel {

/// Writes the kit's own grid as the saved grid of this photo and difficulty, whole or not at all;
/// it is unsaved work no longer. Throws FileError, with everything as it was.
void SaveStipples(Workplace& place);
/// Whether the saved grid is the kit's own.
[[nodiscard]] bool IsSavedGrid(const Workplace& place);
/// The kit's work is in some file: it is unsaved no longer. Throws as KitIsSaved.
void WorkIsSaved(UnsavedWork& work);
/// What follows from that, however the grid was written. Throws FileError when the recovery file
/// cannot be removed.
void KitIsSaved(Workplace& place);
/// Whether the saved grid may be written over. Asks when it is another one and the kit's own was
/// not touched up: a new conversion is soon made again, an evening's work is not.
[[nodiscard]] bool MayReplaceSaved(Workplace& place);

/// A step that replaces the kit's grid, from its question to its success. To be made before the
/// photo, the difficulty or the grid changes: what is unsaved goes by the old ones.
class GridReplacement {
  public:
    /// Asks when the grid holds accepted but unsaved work, and saves it when told to, changed to
    /// stipples first where a setting waits for that; "discard" does not lose it yet. Throws
    /// FileError when it cannot be saved.
    /// Where there is a keeper, it is the kit that must not be lost, and the kit that is saved.
    explicit GridReplacement(Workplace& place, KitKeeper* keeper = nullptr);
    /// A step that broke off before Done has lost nothing: work that is no longer in the kit is
    /// offered again from its recovery file.
    ~GridReplacement();
    GridReplacement(const GridReplacement&) = delete;
    GridReplacement& operator=(const GridReplacement&) = delete;

    /// True when nothing is unsaved any more, or the user agreed to lose it.
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

    void Ask();
    [[nodiscard]] bool Save();

    Workplace& place_;
    KitKeeper* keeper_;
    std::optional<Work> unsaved_;
    bool allowed_ = true;
};

/// Asks, and saves the unsaved work or gives it up at once: for the end of the program. True when
/// nothing is left to lose.
[[nodiscard]] bool MayReplaceGrid(Workplace& place, KitKeeper* keeper = nullptr);

}  // namespace vendrel
