#include "curve.h"

#include <cstddef>
#include <limits>

namespace vendrel::portrait {

namespace {

constexpr int kStepsPerKnot = 8;

// Catmull-Rom between b and c.
Point Blend(const Point (&knots)[4], double t) {
    const auto& [a, b, c, d] = knots;
    const Point linear = (c - a) * t;
    const Point square = (a * 2 - b * 5 + c * 4 - d) * (t * t);
    const Point cube = (b * 3 - a - c * 3 + d) * (t * t * t);
    return b + (linear + square + cube) * 0.5;
}

}  // namespace

Point OnCurve(const Path& knots, double t) {
    const std::size_t last = knots.size() - 1;
    const double along = Clamp01(t) * static_cast<double>(last);
    const std::size_t i = std::min(static_cast<std::size_t>(along), last - 1);
    const Point before = i > 0 ? knots[i - 1] : knots[0] * 2 - knots[1];
    const Point after = i + 2 <= last ? knots[i + 2] : knots[last] * 2 - knots[last - 1];
    return Blend({before, knots[i], knots[i + 1], after}, along - static_cast<double>(i));
}

Path Trace(const Path& knots, int steps) {
    Path path;
    for (int i = 0; i <= steps; ++i)
        path.push_back(OnCurve(knots, static_cast<double>(i) / steps));
    return path;
}

Path Outline(const Path& knots) {
    Path path;
    const std::size_t n = knots.size();
    for (std::size_t i = 0; i < n; ++i) {
        for (int step = 0; step < kStepsPerKnot; ++step) {
            const double t = static_cast<double>(step) / kStepsPerKnot;
            path.push_back(Blend(
                {knots[(i + n - 1) % n], knots[i], knots[(i + 1) % n], knots[(i + 2) % n]}, t));
        }
    }
    return path;
}

Path Mirrored(const Path& rightHalf) {
    Path path = rightHalf;
    const Path back(rightHalf.rbegin(), rightHalf.rend());
    for (const Point& p : back) {
        if (p.x != 0)
            path.push_back({-p.x, p.y});
    }
    return path;
}

double SignedDistance(const Path& polygon, Point p) {
    double nearest = std::numeric_limits<double>::max();
    bool inside = false;
    Point a = polygon.back();
    for (const Point& b : polygon) {
        const Point edge = b - a;
        const Point toP = p - a;
        const double t = Clamp01(Dot(toP, edge) / std::max(Dot(edge, edge), 1e-12));
        const Point gap = toP - edge * t;
        nearest = std::min(nearest, Dot(gap, gap));
        if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + edge.x * (p.y - a.y) / edge.y)
            inside = !inside;
        a = b;
    }
    return inside ? -std::sqrt(nearest) : std::sqrt(nearest);
}

}  // namespace vendrel::portrait
