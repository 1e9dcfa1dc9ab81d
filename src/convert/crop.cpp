#include "convert/crop.h"

#include <algorithm>
#include <cstdint>

#include "convert/working_size.h"

namespace vendrel {
namespace {

// A part that fits at every difficulty is worth this much of the one that fits at Easy.
constexpr std::int64_t kWorthFitting = 80;  // percent

using StretchOf = double (*)(BitmapSize photo, const ScreenSize& screen);

double EasyStretch(BitmapSize photo, const ScreenSize& screen) {
    return SheetStretch(photo, {screen, TraitsOf(Difficulty::Easy).StippleSize});
}

double WorstStretch(BitmapSize photo, const ScreenSize& screen) {
    double worst = 0;
    for (const DifficultyTraits& traits : kDifficulties) {
        worst = std::max(worst, SheetStretch(photo, {screen, traits.StippleSize}));
    }
    return worst;
}

std::int64_t Area(BitmapSize size) {
    return std::int64_t{size.Width} * size.Height;
}

// The shape of the working picture follows a photo's in steps (whole stipples; a photo's sides
// count in units of some fifteen pixels), so no formula leads back: the part is made smaller until
// it comes out with its own shape.
class CropSearch {
  public:
    CropSearch(BitmapSize photo, const ScreenSize& screen, StretchOf stretchOf)
        : photo_(photo), screen_(screen), stretchOf_(stretchOf) {}

    BitmapSize Find() {
        // Near a full side there may be one a few pixels shorter that the steps suit better.
        constexpr int kShorter = 16;
        for (int less = 0; less < kShorter; ++less) {
            TryHeights(photo_.Width - less);
            TryWidths(photo_.Height - less);
        }
        return best_;
    }

  private:
    void TryHeights(int width) {
        for (int height = photo_.Height; height > 0 && CanImprove({width, height}); --height) {
            Try({width, height});
        }
    }
    void TryWidths(int height) {
        for (int width = photo_.Width; width > 0 && CanImprove({width, height}); --width) {
            Try({width, height});
        }
    }

    [[nodiscard]] bool CanImprove(BitmapSize size) const {
        const bool inside = size.Width > 0 && size.Height > 0;
        return inside && (stretch_ >= kUnstretched || Area(size) > Area(best_));
    }
    void Try(BitmapSize size) {
        const double stretch = stretchOf_(size, screen_);
        if (stretch < std::max(stretch_, kUnstretched)) {
            best_ = size;
            stretch_ = stretch;
        }
    }

    BitmapSize photo_;
    ScreenSize screen_;
    StretchOf stretchOf_;
    BitmapSize best_ = photo_;
    double stretch_ = stretchOf_(photo_, screen_);
};

}  // namespace

CropPart PartOf(PhotoFit fit) {
    switch (fit) {
        case PhotoFit::Crop:
            return CropPart::Centre;
        case PhotoFit::CropTop:
            return CropPart::Top;
        default:
            return CropPart::Whole;
    }
}

double SheetStretch(BitmapSize photo, const CropTarget& target) {
    const WorkingSize working = ComputeWorkingSize(photo, target.Screen, target.StippleSize);
    if (!working.HoldsStipples()) {
        return kNoSheet;
    }
    return StretchPercent(photo, working.Pixels(target.Screen.Twips));
}

BitmapSize LargestCrop(BitmapSize photo, const CropTarget& target) {
    if (SheetStretch(photo, target) < kUnstretched) {
        return photo;
    }
    const BitmapSize easy = CropSearch(photo, target.Screen, EasyStretch).Find();
    const BitmapSize every = CropSearch(photo, target.Screen, WorstStretch).Find();
    return 100 * Area(every) > kWorthFitting * Area(easy) ? every : easy;
}

CropRect CropCentre(BitmapSize photo, const CropTarget& target) {
    const BitmapSize size = LargestCrop(photo, target);
    return {(photo.Width - size.Width) / 2, (photo.Height - size.Height) / 2, size.Width,
            size.Height};
}

CropRect CropTop(BitmapSize photo, const CropTarget& target) {
    CropRect part = CropCentre(photo, target);
    part.Top = 0;
    return part;
}

Surface CutOut(const Surface& photo, const CropRect& part) {
    Surface cut(part.Width, part.Height);
    for (int y = 0; y < part.Height; ++y) {
        std::ranges::copy(photo.Row(part.Top + y).From(part.Left).First(part.Width),
                          cut.Row(y).begin());
    }
    return cut;
}

Surface TurnedRight(const Surface& photo, int quarters) {
    const int width = photo.Width();
    const int height = photo.Height();
    Surface turned = quarters % 2 == 0 ? Surface(width, height) : Surface(height, width);
    for (int y = 0; y < turned.Height(); ++y) {
        for (int x = 0; x < turned.Width(); ++x) {
            switch (quarters) {
                case 1:
                    turned.Set(x, y, photo.Get(y, height - 1 - x));
                    break;
                case 2:
                    turned.Set(x, y, photo.Get(width - 1 - x, height - 1 - y));
                    break;
                case 3:
                    turned.Set(x, y, photo.Get(width - 1 - y, x));
                    break;
                default:
                    turned.Set(x, y, photo.Get(x, y));
                    break;
            }
        }
    }
    return turned;
}

}  // namespace vendrel
