#pragma once

#include "support/surface.h"

namespace vendrel {

/// A picture as it looks from so far away that details of `sigma` pixels run together: each pixel
/// the mean of the light around it, weighed by a bell curve of that width. The picture's edge goes
/// on outside. A sigma of 0 gives the picture itself.
[[nodiscard]] Surface Blurred(const Surface& picture, double sigma);

}  // namespace vendrel
