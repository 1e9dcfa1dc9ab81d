#pragma once

#include "shell/scratch_place.h"

namespace vendrel {

/// What the editor's stipples would be painted to, tried on a copy of the kit. Once made it shares
/// nothing with the kit, so it may paint on another thread, one picture at a time.
class PaintingPreview {
  public:
    explicit PaintingPreview(const Workplace& place) : scratch_(place) {}

    /// Throws Error as painting does, and for stipples of another shape than the kit's.
    [[nodiscard]] const Surface& Paint(const PaintList& paints, const Grid<StippleCell>& cells);

  private:
    ScratchPlace scratch_;
};

}  // namespace vendrel
