#pragma once

#include "convert/bitmap_header.h"
#include "shell/settings.h"
#include "shell/surfaces.h"
#include "support/twips.h"

namespace vendrel {

/// A picture stretched by less than this many percent counts as unstretched: a quarter of what a
/// face begins to show.
inline constexpr double kUnstretched = 0.5;
/// A photo stretched by more than this many percent shows it.
inline constexpr double kStretchThatShows = 2.0;

/// How large a photo is worked on. Sizes in twips unless said otherwise.
struct WorkingSize {
    int AspectWidth = 0;  // the photo's size in whole "twip pixels": only their ratio counts
    int AspectHeight = 0;
    bool Landscape = true;  // not taller than wide
    int Width = 0;          // whole stipples; 0 when the photo's shape leaves none
    int Height = 0;
    WindowSize Window;

    [[nodiscard]] bool HoldsStipples() const { return Width > 0 && Height > 0; }
    [[nodiscard]] BitmapSize Pixels(TwipsPerPixel twips) const {
        return {Width / twips.X, Height / twips.Y};
    }
};

/// The largest size that fits the screen: its long side at most 14400 twips, its short side at most
/// 11520, both whole stipples. `photo` in pixels, both sides at least 1; `stippleSize` in pixels.
/// Throws OverflowError when the window to hold it would pass 32767 twips.
[[nodiscard]] WorkingSize ComputeWorkingSize(BitmapSize photo, const ScreenSize& screen,
                                             int stippleSize);

/// The largest size inside the same limits, in whole stipples, that has the photo's proportions:
/// less than 0.5 % off. Where none is that near, the nearest. Half a stipple is less than 0.5 % of
/// a side of more than 100, so on screens from 1280 x 1024 on one is, for every photo up to twenty
/// times as long as wide. Where the long side holds fewer (95 in a portrait at Easy on 1366 x 768)
/// photos up to six times as long as wide are at most 0.51 % off.
[[nodiscard]] WorkingSize ComputeKeptSize(BitmapSize photo, const ScreenSize& screen,
                                          int stippleSize);

/// The working size as chosen. The shape is kept only of photos that ComputeWorkingSize stretches
/// so that it shows, of crops that do not fit too; one whose shape leaves no whole stipple there
/// gets none here.
[[nodiscard]] WorkingSize ComputeFittedSize(BitmapSize photo, const ScreenSize& screen,
                                            int stippleSize, PhotoFit fit);

/// By how many percent the photo is stretched more on one axis than on the other, never negative.
/// All sides in pixels, at least 1.
[[nodiscard]] double StretchPercent(BitmapSize photo, BitmapSize working);

}  // namespace vendrel
