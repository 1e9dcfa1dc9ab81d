#pragma once

#include "shell/records.h"

namespace vendrel {

/// The working palette: what stipples are painted with.
struct Palette {
    PaintList PaintColors;
    int PaintCount = 0;
    OneBased<int> ColorCounts;  // stipples per paint, rebuilt by every count
};

/// Makes `paints` the working palette; the only one that changes PaintCount.
void SetPalette(Palette& palette, PaintList paints);

/// Whether both hold the same paints with the same colors in one order. Counts are left out: they
/// follow from the stipples.
[[nodiscard]] bool SamePaints(const PaintList& a, const PaintList& b);

}  // namespace vendrel
