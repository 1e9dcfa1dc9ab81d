#pragma once

#include <cstdint>
#include <vector>

#include "plan/outlines.h"
#include "plan/painted_regions.h"

namespace vendrel {

/// Tells which paints occur where in a picture without looking at every pixel: squares of it know
/// theirs.
class PaintFinder {
  public:
    PaintFinder() = default;
    /// Of regions whose values are paints, at most kSymbolCount.
    explicit PaintFinder(const PaintedRegions& regions);

    /// The paints that occur on a part of the picture (in pixels), ascending.
    [[nodiscard]] std::vector<int> Within(const PlanRect& part) const;

  private:
    using Paints = std::uint64_t;  // a bit for each

    struct Span {
        int First = 0;
        int End = 0;
    };
    [[nodiscard]] Paints InPixels(Span columns, Span rows) const;

    Grid<std::uint8_t> paints_;  // by pixel
    Grid<Paints> squares_;
};

}  // namespace vendrel
