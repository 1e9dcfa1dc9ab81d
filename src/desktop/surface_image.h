#pragma once

#include <QImage>

#include "support/surface.h"

namespace vendrel {

/// A surface as an image of format RGB32.
[[nodiscard]] QImage ToImage(const Surface& surface);
/// An image's colours, transparency left out.
[[nodiscard]] Surface ToSurface(const QImage& image);

}  // namespace vendrel
