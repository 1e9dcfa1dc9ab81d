#pragma once

#include "paintable/area_map.h"

namespace vendrel {

/// The paints of a stipple grid once no area is below the limits: the smallest areas first, each
/// merged into its neighbors or grown, whichever costs less. A grid too small for the limits ends
/// as one area.
[[nodiscard]] ValueGrid MakePaintable(const StipplePicture& picture, const SeenTable& table,
                                      const AreaTerms& terms, int detail);

}  // namespace vendrel
