#pragma once

#include "convert/bitmap_header.h"
#include "shell/surfaces.h"
#include "support/twips.h"

namespace vendrel {

/// How large a photo is worked on. Sizes in twips unless said otherwise.
struct WorkingSize {
    int AspectWidth = 0;  // the photo's size in whole "twip pixels": only their ratio counts
    int AspectHeight = 0;
    bool Landscape = true;  // not taller than wide
    int Width = 0;          // whole stipples; 0 when the photo's shape leaves none
    int Height = 0;
    WindowSize Window;

    [[nodiscard]] bool HoldsStipples() const { return Width > 0 && Height > 0; }
};

/// The largest size that fits the screen: its long side at most 14400 twips, its short side at most
/// 11520, both whole stipples. `photo` in pixels, both sides at least 1; `stippleSize` in pixels.
/// Throws OverflowError when the window to hold it would pass 32767 twips.
[[nodiscard]] WorkingSize ComputeWorkingSize(BitmapSize photo, const ScreenSize& screen,
                                             int stippleSize);

/// By how many percent the photo is stretched more on one axis than on the other, never negative.
/// All sides in pixels, at least 1.
[[nodiscard]] double StretchPercent(BitmapSize photo, BitmapSize working);

}  // namespace vendrel
