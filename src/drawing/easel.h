#pragma once

#include "shell/workplace.h"

namespace vendrel {

/// What the stipple brush works with.
struct Easel {
    Surface& Picture;  // the work picture
    PaintedPixels& Pixels;
    const WorkSettings& Settings;
    const Palette& Paints;
    Ui& Screen;
};

[[nodiscard]] inline Easel EaselOf(Workplace& place) {
    return {place.Frames->WorkFrame.Picture, place.State, place.State, place.State, place.Screen};
}

}  // namespace vendrel
