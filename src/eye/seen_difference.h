#pragma once

#include "eye/lab.h"

namespace vendrel {

/// How different two colors look by CIEDE2000, about 1 where the eye begins to tell them apart.
[[nodiscard]] double Ciede2000(const Lab& one, const Lab& other);

/// The same for a stipple and the paint that stands for it, and half of the chroma by which the
/// paint exceeds the stipple: gray fur painted lilac is worse than lilac fur painted gray.
[[nodiscard]] double SeenDifference(const Lab& stipple, const Lab& paint);

}  // namespace vendrel
