#include "convert/crop_frame.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "convert/working_size.h"

namespace vendrel {
namespace {

constexpr int kShortestSide = 64;  // smaller parts make blurred kits

BitmapSize WorkingShape(BitmapSize photo, const CropTarget& target) {
    const WorkingSize working = ComputeWorkingSize(photo, target.Screen, target.StippleSize);
    return {working.Width, working.Height};
}

}  // namespace

CropFrame::CropFrame(BitmapSize photo, const CropTarget& target) : photo_(photo), target_(target) {
    StartAnew();
}

void CropFrame::StartAnew() {
    rect_ = CropCentre(photo_, target_);
    shape_ = WorkingShape({rect_.Width, rect_.Height}, target_);
}

bool CropFrame::KeepsPhoto() const {
    return quarters_ == 0 && rect_ == CropRect{0, 0, photo_.Width, photo_.Height};
}

void CropFrame::MoveBy(int right, int down) {
    rect_.Left = std::clamp(rect_.Left + right, 0, photo_.Width - rect_.Width);
    rect_.Top = std::clamp(rect_.Top + down, 0, photo_.Height - rect_.Height);
}

void CropFrame::GrowBy(int pixels) {
    BitmapSize size;
    const Towards direction = pixels < 0 ? Towards::Narrower : Towards::Wider;
    if (pixels == 0 || !FindSize(rect_.Width + pixels, direction, photo_, size)) {
        return;
    }
    const CropRect before = rect_;
    rect_ = {before.Left, before.Top, size.Width, size.Height};
    MoveBy((before.Width - size.Width) / 2, (before.Height - size.Height) / 2);
}

void CropFrame::DragCorner(CropCorner corner, int x, int y) {
    const bool left = corner == CropCorner::TopLeft || corner == CropCorner::BottomLeft;
    const bool top = corner == CropCorner::TopLeft || corner == CropCorner::TopRight;
    const int right = rect_.Left + rect_.Width;
    const int bottom = rect_.Top + rect_.Height;
    const BitmapSize most = {left ? right : photo_.Width - rect_.Left,
                             top ? bottom : photo_.Height - rect_.Top};
    const int across = left ? right - x : x - rect_.Left;
    const int down = top ? bottom - y : y - rect_.Top;
    const double ratio = static_cast<double>(rect_.Width) / rect_.Height;
    const int wanted = std::max(across, static_cast<int>(std::lround(down * ratio)));
    BitmapSize size;
    if (!FindSize(std::min(wanted, most.Width), Towards::Narrower, most, size) &&
        !FindSize(std::max(wanted, NarrowestWidth()), Towards::Wider, most, size)) {
        return;
    }
    rect_ = {left ? right - size.Width : rect_.Left, top ? bottom - size.Height : rect_.Top,
             size.Width, size.Height};
}

void CropFrame::TurnPhoto(Turn turn) {
    quarters_ = (quarters_ + (turn == Turn::Right ? 1 : 3)) % 4;
    std::swap(photo_.Width, photo_.Height);
    StartAnew();
}

Surface CropFrame::Apply(const Surface& photo) const {
    return quarters_ == 0 ? CutOut(photo, rect_) : CutOut(TurnedRight(photo, quarters_), rect_);
}

int CropFrame::NarrowestWidth() const {
    const int shortSide = std::min(shape_.Width, shape_.Height);
    return shortSide == 0 ? photo_.Width : kShortestSide * shape_.Width / shortSide;
}

// The first width from `width` on, in one direction, that some height suits.
bool CropFrame::FindSize(int width, Towards direction, BitmapSize most, BitmapSize& found) const {
    const int step = direction == Towards::Narrower ? -1 : 1;
    for (; width >= NarrowestWidth() && width <= most.Width; width += step) {
        if (FindHeight(width, most, found)) {
            return true;
        }
    }
    return false;
}

// The height nearest to the right proportions that the steps of the working size suit.
bool CropFrame::FindHeight(int width, BitmapSize most, BitmapSize& found) const {
    const double exact = static_cast<double>(width) * shape_.Height / shape_.Width *
                         target_.Screen.Twips.X / target_.Screen.Twips.Y;
    const int nearest = static_cast<int>(std::lround(exact));
    const int reach = static_cast<int>(exact * kUnstretched / 100) + 1;
    for (int off = 0; off <= reach; ++off) {
        for (const int height : {nearest - off, nearest + off}) {
            const BitmapSize size{width, height};
            if (height >= 1 && height <= most.Height && WorkingShape(size, target_) == shape_ &&
                SheetStretch(size, target_) < kUnstretched) {
                found = size;
                return true;
            }
        }
    }
    return false;
}

}  // namespace vendrel
