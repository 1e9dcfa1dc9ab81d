#pragma once

#include <vector>

#include "paintable/limits.h"
#include "regions/labelling.h"

namespace vendrel {

/// The areas of a painting, pixels touching side by side, in figures of the canvas.
struct AreaFigures {
    struct Area {
        double Mm2 = 0;
        double DiscMm = 0;  // diameter of the largest disc inside
    };
    std::vector<Area> Areas;
    double SmallestMm2 = 0;
    double NarrowestMm = 0;  // the smallest of all largest discs

    [[nodiscard]] int Count() const { return static_cast<int>(Areas.size()); }
    /// How many are smaller than that.
    [[nodiscard]] int CountBelow(double mm2) const;
    /// How many are below either limit.
    [[nodiscard]] int CountBelow(const PaintLimits& limits) const;
};

/// `paints`: one per pixel, 0 for none; those make no area.
[[nodiscard]] AreaFigures MeasureAreas(const ValueGrid& paints, PrintScale scale);

}  // namespace vendrel
