#pragma once

#include "convert/crop.h"

namespace vendrel {

enum class CropCorner { TopLeft, TopRight, BottomLeft, BottomRight };

/// The frame laid over a photo to choose the part that is painted: always inside the photo, always
/// of a size that becomes a working picture of the same shape without being stretched.
class CropFrame {
  public:
    /// The frame begins as large as it can be, in the middle.
    CropFrame(BitmapSize photo, const CropTarget& target);

    /// In pixels of the photo as it lies now.
    [[nodiscard]] const CropRect& Rect() const { return rect_; }
    /// The photo's size as it lies now.
    [[nodiscard]] BitmapSize Photo() const { return photo_; }
    /// Quarters of a circle by which the photo was turned to the right, 0 to 3.
    [[nodiscard]] int QuartersRight() const { return quarters_; }
    /// True when nothing would be cut off and nothing turned.
    [[nodiscard]] bool KeepsPhoto() const;

    void MoveBy(int right, int down);
    /// Makes the frame about so many pixels wider (narrower, when negative) round its middle.
    void GrowBy(int pixels);
    /// Pulls a corner towards a pixel of the photo; the corner opposite stays.
    void DragCorner(CropCorner corner, int x, int y);
    /// Turns the photo; the frame begins anew.
    void TurnPhoto(Turn turn);

    /// What the frame shows of the photo, given as it was before any turn.
    [[nodiscard]] Surface Apply(const Surface& photo) const;

  private:
    enum class Towards { Narrower, Wider };

    [[nodiscard]] bool FindSize(int width, Towards direction, BitmapSize most,
                                BitmapSize& found) const;
    [[nodiscard]] bool FindHeight(int width, BitmapSize most, BitmapSize& found) const;
    [[nodiscard]] int NarrowestWidth() const;
    void StartAnew();

    BitmapSize photo_;
    CropTarget target_;
    BitmapSize shape_;  // the working picture of every frame, in twips
    CropRect rect_;
    int quarters_ = 0;
};

}  // namespace vendrel
