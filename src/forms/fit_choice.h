#pragma once

#include <string>
#include <vector>

#include "forms/photo_look.h"
#include "shell/workplace.h"
#include "support/surface.h"

namespace vendrel {

/// What is shown of a photo that is about to be taken.
struct FitControls {
    Surface Preview;            // as it would come onto the sheet; empty when there is none
    std::string Title;          // its name and size
    std::string Description;    // the same and how it fits, or why it cannot be read
    std::vector<FitLook> Ways;  // to choose from; none for a photo that fits by itself
    PhotoFit Way = PhotoFit::Keep;
    bool CropEnabled = false;
};

/// The choice of how a photo comes onto the sheet, the same in every window that takes one.
class FitChoice {
  public:
    explicit FitChoice(Workplace& place) : place_(place) {}

    /// Looks at a photo. `before` is the way that is chosen at first, where it is open.
    void Show(const std::string& name, const Surface& photo, BitmapSize size, PhotoFit before);
    /// There is nothing to look at; `why` may say so.
    void Clear(const std::string& why = {}, Surface picture = {});
    void Way_Click(PhotoFit way);

    /// Whether the photo does not fit by itself.
    [[nodiscard]] bool Asks() const { return !controls_.Ways.empty(); }
    /// The way to take: Keep when there is nothing to choose.
    [[nodiscard]] PhotoFit Way() const { return Asks() ? controls_.Way : PhotoFit::Keep; }
    [[nodiscard]] const FitControls& Controls() const { return controls_; }

  private:
    void Show(const FitLook& look);

    Workplace& place_;
    FitControls controls_;
};

}  // namespace vendrel
