#pragma once

#include <vector>

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

/// Two or more points with straight pieces between; closed when it ends where it began.
using PlanLine = std::vector<PlanPoint>;

/// What of a line lies within a part of the picture.
[[nodiscard]] std::vector<PlanLine> ClipLine(const PlanLine& line, const PlanRect& part);

}  // namespace vendrel
