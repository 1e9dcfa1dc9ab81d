#pragma once

#include <vector>

#include "shelf/shelf.h"
#include "support/color.h"

namespace vendrel {

/// A paint that is left on the shelf and how different it looks.
struct NearPaint {
    const ShelfPaint* Paint = nullptr;  // on the shelf that was asked
    double Seen = 0;                    // CIEDE2000
};

/// The `count` paints that are left and look most like a color, the nearest first; the shelf's
/// order where they are equally near.
[[nodiscard]] std::vector<NearPaint> NearestOwned(const Shelf& shelf, Color color, int count);

}  // namespace vendrel
