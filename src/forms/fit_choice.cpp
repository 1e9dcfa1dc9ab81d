#include "forms/fit_choice.h"

#include <algorithm>
#include <utility>

#include "intake/photo_intake.h"
#include "support/size_text.h"

namespace vendrel {
namespace {

constexpr int kPreviewEdge = 260;  // pixels

}  // namespace

void FitChoice::Show(const std::string& name, const Surface& photo, BitmapSize size,
                     PhotoFit before) {
    PhotoLook look = LookAt(photo, TargetOf(place_.Screen, place_.State), kPreviewEdge);
    controls_ = {};
    controls_.Title = name + "\n" + SizeText(size.Width, size.Height) + " pixels";
    controls_.Ways = std::move(look.Ways);
    controls_.CropEnabled = look.HasCrop;
    if (!Asks()) {
        Show(look.AsItIs);
        return;
    }
    Show(controls_.Ways.front());
    Way_Click(before);
}

void FitChoice::Show(const FitLook& look) {
    controls_.Way = look.Way;
    controls_.Preview = look.Picture;
    controls_.Description = controls_.Title + "\n" + look.Sentence;
}

void FitChoice::Clear(const std::string& why, Surface picture) {
    controls_ = {};
    controls_.Preview = std::move(picture);
    controls_.Description = why;
}

void FitChoice::Way_Click(PhotoFit way) {
    const auto look = std::ranges::find(controls_.Ways, way, &FitLook::Way);
    if (look != controls_.Ways.end()) {
        Show(*look);
    }
}

}  // namespace vendrel
