#pragma once

#include <functional>
#include <optional>
#include <string>

#include "convert/crop_frame.h"
#include "edits/place_edits.h"
#include "shell/workplace.h"
#include "support/surface.h"

namespace vendrel {

/// What the crop window shows. Places are pixels of the photo as it lies now.
struct CropPhotoControls {
    Surface Picture;  // the whole photo as it lies now, made small
    BitmapSize Photo;
    CropRect Frame;
    std::string Description;
};

/// Where the frame can be taken hold of.
enum class CropGrip { None, Inside, TopLeft, TopRight, BottomLeft, BottomRight };

/// The crop window: a frame of the sheet's proportions over the photo. OK keeps what it shows as a
/// photo of its own.
class CropPhoto {
  public:
    using Kept = std::function<void(const std::string& pictureFile)>;

    explicit CropPhoto(Workplace& place) : place_(place) {}

    /// `name` is what the crop is named after; `kept` hears of its file.
    void Open(Surface photo, std::string name, Kept kept);

    /// What lies under a place; corners reach that far around.
    [[nodiscard]] CropGrip GripAt(int x, int y, int reach) const;
    void Photo_MouseDown(int x, int y, int reach);
    void Photo_MouseMove(int x, int y);
    void Photo_MouseUp() { held_ = CropGrip::None; }
    /// Moves the frame by small steps.
    void Move(int stepsRight, int stepsDown);
    /// Makes it wider by small steps; narrower when negative.
    void Grow(int steps);
    void TurnLeft_Click() { TurnPhoto(Turn::Left); }
    void TurnRight_Click() { TurnPhoto(Turn::Right); }
    /// Does nothing more than Cancel where the frame shows the whole photo as it was. Throws
    /// FileError; the window stays open then.
    void OKButton_Click();
    void CancelButton_Click();

    [[nodiscard]] const CropPhotoControls& Controls() const { return controls_; }
    /// What part of the photo was kept last.
    [[nodiscard]] const LayerPart& KeptPart() const { return keptPart_; }
    /// The same in pixels of the photo as it was turned.
    [[nodiscard]] const CropRect& KeptRect() const { return controls_.Frame; }

  private:
    [[nodiscard]] int Step() const;
    void TurnPhoto(Turn turn);
    void ShowPhoto();
    void ShowFrame();
    void Close();

    Workplace& place_;
    CropPhotoControls controls_;
    Surface photo_;  // not turned
    Surface small_;  // not turned
    std::string name_;
    Kept kept_;
    LayerPart keptPart_;
    std::optional<CropFrame> frame_;
    CropGrip held_ = CropGrip::None;
    int holdX_ = 0;  // from the frame's corner that is held, its top left one for the inside
    int holdY_ = 0;
};

}  // namespace vendrel
