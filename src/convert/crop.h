#pragma once

#include <limits>

#include "convert/bitmap_header.h"
#include "shell/settings.h"
#include "support/surface.h"
#include "support/twips.h"

namespace vendrel {

/// A part of a photo, in pixels.
struct CropRect {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    bool operator==(const CropRect&) const = default;
};

/// What settles the shape of a working picture beside the photo's own.
struct CropTarget {
    ScreenSize Screen;
    int StippleSize = 8;  // pixels
};

/// Which part of a photo is kept when its shape asks for less than the whole.
enum class CropPart { Whole, Centre, Top };

/// The part that a way of fitting keeps.
[[nodiscard]] CropPart PartOf(PhotoFit fit);

/// The stretch of a photo whose shape leaves no whole stipple.
inline constexpr double kNoSheet = std::numeric_limits<double>::max();

/// By how many percent a photo is stretched to become a working picture the plain way, or kNoSheet.
/// Sides at least 1.
[[nodiscard]] double SheetStretch(BitmapSize photo, const CropTarget& target);

/// The largest part of a photo that becomes a working picture without being stretched: the whole
/// photo when its shape is right. A smaller part is the same at every difficulty, so that a crop
/// is one picture: one that fits at each, unless a screen of odd proportions leaves only much less
/// than what fits at Easy. Of a photo too small for that the least stretched part.
[[nodiscard]] BitmapSize LargestCrop(BitmapSize photo, const CropTarget& target);

/// That part, cut from the middle.
[[nodiscard]] CropRect CropCentre(BitmapSize photo, const CropTarget& target);
/// That part, cut from the top of the photo, where faces are.
[[nodiscard]] CropRect CropTop(BitmapSize photo, const CropTarget& target);

/// The part as a picture of its own; it must lie inside the photo.
[[nodiscard]] Surface CutOut(const Surface& photo, const CropRect& part);

enum class Turn { Left, Right };

/// The photo turned by `quarters` quarters of a circle to the right, 0 to 3.
[[nodiscard]] Surface TurnedRight(const Surface& photo, int quarters);

}  // namespace vendrel
