#pragma once

#include <vector>

#include "plan/line_index.h"

namespace vendrel {

/// The middle of a part of an area that is little broader than a brush.
struct NarrowPart {
    int Area = 0;
    PlanPoint Middle;
    double Room = 0;  // to the nearest border, in pixels
};

/// The narrow parts of areas, every few pixels along them: those up to `widest` pixels across.
/// `index` is that of the same pixels' lines.
[[nodiscard]] std::vector<NarrowPart> FindNarrowParts(const PixelGrid& ids, const LineIndex& index,
                                                      double widest);

}  // namespace vendrel
