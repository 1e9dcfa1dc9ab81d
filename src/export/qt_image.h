#pragma once

#include <QImage>

#include "support/surface.h"

namespace vendrel {

/// A toolkit picture of any kind (16 bits, grey, palette, profile, transparency) as plain sRGB
/// pixels, on white where it is transparent.
[[nodiscard]] Surface ToSurface(QImage image);

/// A surface as a 32-bit picture for windows and clipboard.
[[nodiscard]] QImage ToImage(const Surface& surface);

}  // namespace vendrel
