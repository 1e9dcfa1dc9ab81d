#pragma once

#include <vector>

#include "tint.h"

namespace vendrel::portrait {

using Path = std::vector<Point>;

// The point at t, 0..1, of the smooth open curve through all knots, evenly spaced in t.
Point OnCurve(const Path& knots, double t);

// The smooth open curve as `steps` + 1 points.
Path Trace(const Path& knots, int steps);

// The smooth closed curve through the knots, as a polygon.
Path Outline(const Path& knots);

// The knots followed by their mirror images about x = 0, walked back.
Path Mirrored(const Path& rightHalf);

// Distance to the polygon's edge: negative inside, positive outside.
double SignedDistance(const Path& polygon, Point p);

}  // namespace vendrel::portrait
