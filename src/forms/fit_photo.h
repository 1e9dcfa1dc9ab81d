#pragma once

#include <functional>
#include <string>

#include "forms/crop_photo.h"
#include "forms/fit_choice.h"
#include "shell/workplace.h"
#include "support/surface.h"

namespace vendrel {

/// A photo that was dropped or pasted.
struct Arrived {
    Surface Picture;
    BitmapSize Size;   // of the file, when the picture is smaller
    std::string Name;  // as it is shown
    std::string Stem;  // what a crop of it is named after
};

/// The window that asks how an arrived photo comes onto the sheet.
class FitPhoto {
  public:
    using Chosen = std::function<void(PhotoFit way, const Surface& picture)>;

    FitPhoto(Workplace& place, CropPhoto& crop) : place_(place), crop_(crop), fit_(place) {}

    /// `chosen` hears of the way, `cropped` of the file in Pictures where a crop was made instead.
    void Open(Arrived photo, PhotoFit before, Chosen chosen, CropPhoto::Kept cropped);

    /// Throws what the photo's taking throws; the window has closed then.
    void OKButton_Click();
    void CropButton_Click();
    void CancelButton_Click() { Close(); }

    [[nodiscard]] FitChoice& Fit() { return fit_; }

  private:
    void Close();

    Workplace& place_;
    CropPhoto& crop_;
    FitChoice fit_;
    Arrived photo_;
    Chosen chosen_;
    CropPhoto::Kept cropped_;
};

}  // namespace vendrel
