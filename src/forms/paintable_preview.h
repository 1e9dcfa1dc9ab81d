#pragma once

#include <optional>

#include "convert/seen_stipples.h"
#include "output/kit_figures.h"
#include "shell/scratch_place.h"

namespace vendrel {

/// A kit as other settings would make it, tried on a copy of the work: palette, stipples, painting.
class PaintablePreview {
  public:
    /// Of the photo that is loaded.
    explicit PaintablePreview(const Workplace& place) : scratch_(place) {}

    /// Converts and paints for these settings; only what they change is done again. `isProtected`
    /// is that of WorkState::Protected. Throws Error as conversion and painting do.
    void Make(const Settings& wish, const ValueGrid& isProtected);

    [[nodiscard]] const WorkState& State() const { return scratch_.State; }
    [[nodiscard]] const Surface& Photo() const { return scratch_.Frames.CaptureFrame.Picture; }
    [[nodiscard]] const Surface& Painting() const { return scratch_.Frames.WorkFrame.Picture; }
    [[nodiscard]] const KitFigures& Figures() const { return figures_; }
    /// Of the stipples and their paints, mean.
    [[nodiscard]] double SeenDifference() const { return scratch_.State.SeenPerStipple; }

  private:
    struct Converted {
        Matching Match;
        int FinalPaints;
        PaintList Palette;
        Grid<StippleCell> Stipples;
        SeenStipples Seen;
    };
    void Convert(const Settings& wish);

    ScratchPlace scratch_;
    std::optional<Converted> converted_;
    KitFigures figures_;
};

/// Stipples that touch side by side and have one paint, counted.
[[nodiscard]] int CountGridAreas(const StippleGrid& grid);

}  // namespace vendrel
