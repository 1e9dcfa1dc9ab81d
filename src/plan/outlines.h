#pragma once

#include <vector>

#include "plan/painted_regions.h"

namespace vendrel {

/// A place on the picture, in pixels from its upper left corner; whole numbers are pixel corners.
struct PlanPoint {
    double X = 0;
    double Y = 0;
    bool operator==(const PlanPoint&) const = default;
};

/// A part of the picture, in pixels.
struct PlanRect {
    double Left = 0;
    double Top = 0;
    double Right = 0;
    double Bottom = 0;
    bool operator==(const PlanRect&) const = default;
};

/// A line of two or more points, each step level or upright; closed when it ends where it began.
using PlanLine = std::vector<PlanPoint>;

/// The borders between regions, the picture's own edge included: every piece of border once, in
/// lines as long as they come, with points only where they turn.
[[nodiscard]] std::vector<PlanLine> TraceOutlines(const PixelGrid& ids);

/// What of the lines lies within a part of the picture.
[[nodiscard]] std::vector<PlanLine> ClipLines(const std::vector<PlanLine>& lines,
                                              const PlanRect& part);

}  // namespace vendrel
