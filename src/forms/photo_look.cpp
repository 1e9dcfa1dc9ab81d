#include "forms/photo_look.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>

#include "convert/scaling.h"
#include "convert/working_size.h"
#include "forms/reading_shown.h"

namespace vendrel {
namespace {

constexpr double kNoSheet = std::numeric_limits<double>::max();

// Width through height, as it is seen.
double FinalRatio(BitmapSize photo, const CropTarget& target) {
    const WorkingSize working = ComputeWorkingSize(photo, target.Screen, target.StippleSize);
    if (!working.HoldsStipples()) {
        return static_cast<double>(photo.Width) / photo.Height;
    }
    return static_cast<double>(working.Width) / target.Screen.Twips.X /
           (static_cast<double>(working.Height) / target.Screen.Twips.Y);
}

Surface InFinalShape(const Surface& photo, double ratio, int edge) {
    const int longer = std::min(edge, std::max(photo.Width(), photo.Height()));
    const auto side = [longer](double share) {
        return std::max(1, static_cast<int>(std::lround(longer * std::min(1.0, share))));
    };
    return ScaleTo(photo, side(ratio), side(1 / ratio));
}

std::string Sentence(double stretch) {
    if (stretch == kNoSheet) {
        return "Too long and narrow for a sheet.";
    }
    char percent[32];
    std::snprintf(percent, sizeof percent, "%.1f", stretch);
    return stretch < 0.05 ? "Fits the sheet as it is."
                          : "On the sheet it is stretched by " + std::string(percent) + " %.";
}

}  // namespace

Surface ReadAnyPhoto(Ui& screen, IncomingPhoto& photo) {
    const ReadingShown reading(screen);
    return photo.Picture(reading.Progress());
}

PhotoLook LookAt(const Surface& photo, const CropTarget& target, int edge) {
    const BitmapSize size{photo.Width(), photo.Height()};
    const double stretch = SheetStretch(size, target);
    PhotoLook look{InFinalShape(photo, FinalRatio(size, target), edge), Sentence(stretch)};
    look.CropHelps = stretch > kStretchThatShows &&
                     SheetStretch(LargestCrop(size, target), target) < kMaxCropStretch;
    return look;
}

}  // namespace vendrel
