#pragma once

#include "output/sheet_drawing.h"
#include "output/sheet_record.h"
#include "shell/workplace.h"
#include "support/target.h"

namespace vendrel {

/// The painted picture numbered once, to be drawn as sheet and as reference. The work picture
/// shows the painting again afterwards.
class NumberedPainting {
  public:
    /// Throws Error for more paints than symbols or an unpainted picture, OverflowError.
    explicit NumberedPainting(Workplace& place);

    /// Borders and symbols on white. Throws FileError, OverflowError.
    void WriteSheet(const Target& target) const;
    /// The same on the enlarged painting, in black or white. Throws FileError, OverflowError.
    void WriteReference(const Target& target) const;

    [[nodiscard]] const NumberingCounts& Counts() const { return record_.Counts; }

  private:
    [[nodiscard]] SheetLook Look(const Surface* ground, OneBased<Color> inks) const;

    const Workplace& place_;
    SheetRecord record_;
};

}  // namespace vendrel
