#include "forms/photo_look.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "convert/scaling.h"
#include "convert/working_size.h"
#include "forms/reading_shown.h"
#include "support/size_text.h"

namespace vendrel {
namespace {

// `photo` scaled to a picture of the proportions that it is worked on with.
Surface InShape(const Surface& photo, BitmapSize working, int edge) {
    const int longer = std::min(edge, std::max(photo.Width(), photo.Height()));
    const double ratio = static_cast<double>(working.Width) / working.Height;
    const auto side = [longer](double share) {
        return std::max(1, static_cast<int>(std::lround(longer * std::min(1.0, share))));
    };
    return ScaleTo(photo, side(ratio), side(1 / ratio));
}

std::string Percent(double number) {
    char percent[32];
    std::snprintf(percent, sizeof percent, "%.1f", number);
    return std::string(percent) + " %";
}

class Looking {
  public:
    Looking(const Surface& photo, const CropTarget& target, int edge)
        : photo_(photo), target_(target), edge_(edge) {}

    [[nodiscard]] PhotoLook Look() const {
        const double stretch = SheetStretch(size_, target_);
        PhotoLook look;
        look.HasCrop = SheetStretch(LargestCrop(size_, target_), target_) != kNoSheet;
        if (stretch == kNoSheet) {
            look.AsItIs = {PhotoFit::Keep, InShape(photo_, size_, edge_),
                           "Too long and narrow for a sheet."};
        } else if (stretch > kStretchThatShows) {
            look.Ways = {Kept(), Stretched(stretch)};
        } else {
            look.AsItIs = Stretched(stretch);
        }
        if (look.HasCrop && stretch > kStretchThatShows) {
            look.Ways.insert(look.Ways.begin() + (look.Ways.empty() ? 0 : 1), Cropped());
        }
        return look;
    }

  private:
    [[nodiscard]] BitmapSize Working(BitmapSize photo, PhotoFit fit) const {
        return ComputeFittedSize(photo, target_.Screen, target_.StippleSize, fit)
            .Pixels(target_.Screen.Twips);
    }
    [[nodiscard]] FitLook Kept() const {
        const BitmapSize working = Working(size_, PhotoFit::Keep);
        return {PhotoFit::Keep, InShape(photo_, working, edge_),
                "A sheet of " + SizeText(working.Width, working.Height) +
                    " pixels in the shape of the photo."};
    }
    [[nodiscard]] FitLook Cropped() const {
        const CropRect part = CropCentre(size_, target_);
        const BitmapSize size{part.Width, part.Height};
        return {PhotoFit::Crop, InShape(CutOut(photo_, part), Working(size, PhotoFit::Crop), edge_),
                "The middle, " + SizeText(size.Width, size.Height) +
                    " pixels of it, fills the sheet. Crop or Turn takes another part."};
    }
    [[nodiscard]] FitLook Stretched(double stretch) const {
        return {PhotoFit::Stretch, InShape(photo_, Working(size_, PhotoFit::Stretch), edge_),
                stretch < 0.05 ? "Fits the sheet as it is."
                               : "On the sheet it is stretched by " + Percent(stretch) + "."};
    }

    const Surface& photo_;
    CropTarget target_;
    int edge_;
    BitmapSize size_{photo_.Width(), photo_.Height()};
};

}  // namespace

Surface ReadAnyPhoto(Ui& screen, IncomingPhoto& photo) {
    const ReadingShown reading(screen);
    return photo.Picture(reading.Progress());
}

PhotoLook LookAt(const Surface& photo, const CropTarget& target, int edge) {
    return Looking(photo, target, edge).Look();
}

}  // namespace vendrel
