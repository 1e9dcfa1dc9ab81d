#pragma once

#include "paintable/limits.h"
#include "regions/labelling.h"

namespace vendrel {

/// A painting and the stipple grid it was painted from; paints count from 0 in both.
struct BrushedPainting {
    ValueGrid Pixels;  // the paint that the brush left, other numbers where it left none
    ValueGrid Stipples;
    ValueGrid Protected;  // per stipple, other than 0 where the limits are a third; may be empty
    int StippleSize = 0;  // pixels
};

/// The paint of every pixel once what the brush left of corners has joined a neighbor: the areas of
/// the painting, pixels touching side by side, are those of the grid, one for one, and each keeps
/// the limits that it keeps on the grid. Where the round brush took too much, the stipples there
/// stay square.
[[nodiscard]] ValueGrid PaintsForPrint(const BrushedPainting& painting, const PixelLimits& limits,
                                       const PixelLimits& protectedLimits);

}  // namespace vendrel
