#pragma once

#include "shell/workplace.h"

namespace vendrel {

/// Sets `StippleSize` and what hangs on it, and loads the photo at `PicturePath`, if any, anew for
/// it. Throws as LoadNewPicture does; the old size and photo stay then.
void SetStippleSize(Workplace& place, int size);

/// Empties `PixelMap` and fits it to a picture: 0..width, 0..height in pixels.
void ResizePixelMap(PaintedPixels& pixels, const Surface& picture);

}  // namespace vendrel
