#pragma once

#include "shell/records.h"

namespace vendrel {

/// Paints that are no palette yet: those a conversion has met so far, or the touch-up editor's.
struct FoundPalette {
    PaintList FoundColors;
    int FoundCount = 0;
};

// The only ones that change FoundColors together with their count.

/// Makes `paints` the found colors.
void SetFoundColors(FoundPalette& found, PaintList paints);

/// Adds a found color. Throws OverflowError past 32767.
void AddFoundColor(FoundPalette& found, PaintColor paint);

}  // namespace vendrel
