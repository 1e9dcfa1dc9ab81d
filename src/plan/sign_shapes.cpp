#include "plan/sign_shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace vendrel::shapes {
namespace {

constexpr int kRoundSteps = 40;  // of a circle

PlanPoint OnCircle(double radius, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return {radius * std::cos(angle), radius * std::sin(angle)};
}

template <class Change>
Rings Each(Rings rings, Change change) {
    for (PlanLine& ring : rings) {
        for (PlanPoint& point : ring) {
            point = change(point);
        }
    }
    return rings;
}

}  // namespace

PlanLine Box(const PlanRect& rect) {
    return {{rect.Left, rect.Top},
            {rect.Right, rect.Top},
            {rect.Right, rect.Bottom},
            {rect.Left, rect.Bottom}};
}

PlanLine Disc(double radius, PlanPoint centre) {
    PlanLine ring;
    for (int step = 0; step < kRoundSteps; ++step) {
        const PlanPoint at = OnCircle(radius, 360.0 * step / kRoundSteps);
        ring.push_back({centre.X + at.X, centre.Y + at.Y});
    }
    return ring;
}

PlanLine Segment(double radius, double from, double to) {
    PlanLine ring;
    for (int step = 0; step <= kRoundSteps; ++step) {
        ring.push_back(OnCircle(radius, from + (to - from) * step / kRoundSteps));
    }
    return ring;
}

PlanLine Star(int points, double outer, double inner) {
    PlanLine ring;
    for (int i = 0; i < 2 * points; ++i) {
        ring.push_back(OnCircle(i % 2 == 0 ? outer : inner, -90 + 180.0 * i / points));
    }
    return ring;
}

// The usual curve of sixteen cubed sines, brought into its box.
PlanLine Heart(double size) {
    constexpr double kWide = 32;
    constexpr double kTop = 11.95;
    constexpr double kTall = 29;
    PlanLine ring;
    for (int step = 0; step < kRoundSteps; ++step) {
        const double t = 2 * std::numbers::pi * step / kRoundSteps;
        const double x = 16 * std::pow(std::sin(t), 3);
        const double y =
            13 * std::cos(t) - 5 * std::cos(2 * t) - 2 * std::cos(3 * t) - std::cos(4 * t);
        ring.push_back({size * x / kWide, size * ((kTop - y) / kTall - 0.5)});
    }
    return ring;
}

Rings Turned(Rings rings, int quarters) {
    return Each(std::move(rings), [quarters](PlanPoint at) {
        for (int i = 0; i < quarters; ++i) {
            at = {-at.Y, at.X};
        }
        return at;
    });
}

Rings Leaning(Rings rings, double degrees) {
    const PlanPoint way = OnCircle(1, degrees);
    return Each(std::move(rings), [way](PlanPoint at) {
        return PlanPoint{way.X * at.X - way.Y * at.Y, way.Y * at.X + way.X * at.Y};
    });
}

Rings Moved(Rings rings, PlanPoint by) {
    return Each(std::move(rings), [by](PlanPoint at) {
        return PlanPoint{at.X + by.X, at.Y + by.Y};
    });
}

Rings Centred(Rings rings) {
    PlanRect box{1, 1, -1, -1};
    for (const PlanLine& ring : rings) {
        for (const PlanPoint& at : ring) {
            box = {std::min(box.Left, at.X), std::min(box.Top, at.Y), std::max(box.Right, at.X),
                   std::max(box.Bottom, at.Y)};
        }
    }
    return Moved(std::move(rings), {-(box.Left + box.Right) / 2, -(box.Top + box.Bottom) / 2});
}

Rings Both(Rings one, const Rings& other) {
    one.insert(one.end(), other.begin(), other.end());
    return one;
}

}  // namespace vendrel::shapes
