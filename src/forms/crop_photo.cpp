#include "forms/crop_photo.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include "convert/scaling.h"
#include "intake/keep_picture.h"
#include "intake/photo_intake.h"
#include "shell/busy_pointer.h"

namespace vendrel {
namespace {

constexpr int kShownEdge = 1200;  // pixels: no window shows a photo larger
constexpr int kStepsAcross = 150;

struct Corner {
    CropGrip Grip;
    CropCorner Which;
    bool Left;
    bool Top;

    [[nodiscard]] int X(const CropRect& frame) const {
        return Left ? frame.Left : frame.Left + frame.Width;
    }
    [[nodiscard]] int Y(const CropRect& frame) const {
        return Top ? frame.Top : frame.Top + frame.Height;
    }
};

constexpr std::array kCorners = {
    Corner{CropGrip::TopLeft, CropCorner::TopLeft, true, true},
    Corner{CropGrip::TopRight, CropCorner::TopRight, false, true},
    Corner{CropGrip::BottomLeft, CropCorner::BottomLeft, true, false},
    Corner{CropGrip::BottomRight, CropCorner::BottomRight, false, false},
};

const Corner* CornerOf(CropGrip grip) {
    const auto* found = std::ranges::find(kCorners, grip, &Corner::Grip);
    return found == kCorners.end() ? nullptr : found;
}

Surface Shrink(const Surface& photo) {
    const int longer = std::max(photo.Width(), photo.Height());
    const double share = std::min(1.0, static_cast<double>(kShownEdge) / longer);
    return ScaleTo(photo, std::max(1, static_cast<int>(photo.Width() * share)),
                   std::max(1, static_cast<int>(photo.Height() * share)));
}

std::string Sides(int width, int height) {
    return std::to_string(width) + " x " + std::to_string(height);
}

LayerPart PartIn(const CropFrame& frame) {
    const CropRect& rect = frame.Rect();
    const double width = frame.Photo().Width;
    const double height = frame.Photo().Height;
    return {rect.Left / width, rect.Top / height, rect.Width / width, rect.Height / height,
            frame.QuartersRight()};
}

}  // namespace

void CropPhoto::Open(Surface photo, std::string name, Kept kept) {
    frame_.emplace(BitmapSize{photo.Width(), photo.Height()},
                   TargetOf(place_.Screen, place_.State));
    photo_ = std::move(photo);
    small_ = Shrink(photo_);
    name_ = std::move(name);
    kept_ = std::move(kept);
    held_ = CropGrip::None;
    ShowPhoto();
    place_.Screen.OpenForm(FormId::CropPhoto);
}

void CropPhoto::ShowPhoto() {
    controls_.Picture = TurnedRight(small_, frame_->QuartersRight());
    controls_.Photo = frame_->Photo();
    ShowFrame();
}

void CropPhoto::ShowFrame() {
    const CropRect& frame = frame_->Rect();
    controls_.Frame = frame;
    controls_.Description = Sides(frame.Width, frame.Height) + " of " +
                            Sides(controls_.Photo.Width, controls_.Photo.Height) + " pixels";
}

CropGrip CropPhoto::GripAt(int x, int y, int reach) const {
    const CropRect& frame = controls_.Frame;
    for (const Corner& corner : kCorners) {
        if (std::abs(x - corner.X(frame)) <= reach && std::abs(y - corner.Y(frame)) <= reach) {
            return corner.Grip;
        }
    }
    const bool inside = x >= frame.Left && x < frame.Left + frame.Width && y >= frame.Top &&
                        y < frame.Top + frame.Height;
    return inside ? CropGrip::Inside : CropGrip::None;
}

void CropPhoto::Photo_MouseDown(int x, int y, int reach) {
    held_ = GripAt(x, y, reach);
    const Corner* corner = CornerOf(held_);
    const CropRect& frame = controls_.Frame;
    holdX_ = x - (corner != nullptr ? corner->X(frame) : frame.Left);
    holdY_ = y - (corner != nullptr ? corner->Y(frame) : frame.Top);
}

void CropPhoto::Photo_MouseMove(int x, int y) {
    if (held_ == CropGrip::None || !frame_) {
        return;
    }
    if (const Corner* corner = CornerOf(held_)) {
        frame_->DragCorner(corner->Which, x - holdX_, y - holdY_);
    } else {
        // From where the frame is, so that it comes back with the pointer from beyond an edge.
        frame_->MoveBy(x - holdX_ - frame_->Rect().Left, y - holdY_ - frame_->Rect().Top);
    }
    ShowFrame();
}

int CropPhoto::Step() const {
    return std::max(1, std::max(controls_.Photo.Width, controls_.Photo.Height) / kStepsAcross);
}

void CropPhoto::Move(int stepsRight, int stepsDown) {
    frame_->MoveBy(stepsRight * Step(), stepsDown * Step());
    ShowFrame();
}

void CropPhoto::Grow(int steps) {
    frame_->GrowBy(steps * Step());
    ShowFrame();
}

void CropPhoto::TurnPhoto(Turn turn) {
    frame_->TurnPhoto(turn);
    held_ = CropGrip::None;
    ShowPhoto();
}

void CropPhoto::OKButton_Click() {
    if (frame_->KeepsPhoto()) {
        Close();
        return;
    }
    std::string file;
    {
        const BusyPointer busy(place_.Screen);
        file = KeepCrop(place_.Folder, name_, frame_->Apply(photo_));
    }
    const Kept kept = kept_;
    keptPart_ = PartIn(*frame_);
    Close();
    kept(file);
}

void CropPhoto::CancelButton_Click() {
    Close();
}

void CropPhoto::Close() {
    place_.Screen.CloseForm(FormId::CropPhoto);
    // A photo is large.
    photo_ = {};
    small_ = {};
    kept_ = {};
}

}  // namespace vendrel
