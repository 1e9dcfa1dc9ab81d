#include "forms/touch_up_areas.h"

#include <algorithm>

#include "forms/counted.h"

namespace vendrel {

int TouchUpAreas::Smallest() const {
    return controls_.Unit == AreaUnit::Stipples
               ? controls_.Below
               : StipplesOfMm2(controls_.Below, stipple_.MmPerPixel());
}

void TouchUpAreas::SetBelow(int below, AreaUnit unit) {
    controls_.Below = std::clamp(below, 1, kMostBelow);
    controls_.Unit = unit;
    FollowMerge();
}

void TouchUpAreas::TogglePreview() {
    controls_.Preview = !controls_.Preview;
    FollowMerge();
}

void TouchUpAreas::ToggleHard() {
    controls_.MarkHard = !controls_.MarkHard;
    Follow();
}

CellRect TouchUpAreas::Merge() {
    return editor_.MergeAreas(Smallest());
}

HardAreas TouchUpAreas::FindHard() const {
    return FindHardAreas(editor_.Sheet(), {stipple_.PixelsOfMm2(limits_.SmallestMm2),
                                           stipple_.Pixels(limits_.NarrowestMm)});
}

std::optional<CellPos> TouchUpAreas::NextHard() {
    const HardAreas hard = FindHard();
    const HardArea* next = hard.Next(hardAt_);
    hardAt_ = next != nullptr ? next->At : CellPos{};
    FollowHard(hard);
    return next != nullptr ? std::optional(next->At) : std::nullopt;
}

void TouchUpAreas::Follow() {
    FollowMerge();
    if (controls_.MarkHard) {
        hard_ = FindHard();
        FollowHard(hard_);
    } else {
        hard_ = {};
        controls_.HardText.clear();
    }
}

// Finding all areas takes longer than a stroke may: only for whoever looks at them.
void TouchUpAreas::FollowMerge() {
    plan_ = controls_.Preview ? editor_.PreviewAreaMerge(Smallest()) : AreaMerge{};
    const int changes = static_cast<int>(plan_.Changes.size());
    controls_.MergeEnabled = !controls_.Preview || changes > 0;
    controls_.MergeText = controls_.Preview
                              ? Counted(changes, "stipple would change", "stipples would change") +
                                    ", " + Counted(plan_.AreasLeft, "area left", "areas left")
                              : "";
}

void TouchUpAreas::FollowHard(const HardAreas& hard) {
    const int count = static_cast<int>(hard.List.size());
    controls_.HardText = count == 0
                             ? "All areas can be painted"
                             : Counted(count, "area is hard to paint", "areas are hard to paint");
    if (count > 0 && hardAt_ != CellPos{}) {
        controls_.HardText += "; " + PlaceText(hardAt_);
    }
}

}  // namespace vendrel
