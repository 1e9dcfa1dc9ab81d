#pragma once

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace vendrel::portrait {

// A point of the picture, in picture pixels, or of the sitter, in half face widths; y runs down.
struct Point {
    double x = 0;
    double y = 0;
};

inline Point operator+(Point a, Point b) {
    return {a.x + b.x, a.y + b.y};
}
inline Point operator-(Point a, Point b) {
    return {a.x - b.x, a.y - b.y};
}
inline Point operator*(Point a, double k) {
    return {a.x * k, a.y * k};
}
inline double Dot(Point a, Point b) {
    return a.x * b.x + a.y * b.y;
}
inline double Length(Point a) {
    return std::hypot(a.x, a.y);
}

// A colour as mixed on the palette: channels 0..255, blended as they are displayed.
struct Tint {
    double r = 0;
    double g = 0;
    double b = 0;
};

inline Tint operator+(Tint a, Tint b) {
    return {a.r + b.r, a.g + b.g, a.b + b.b};
}
inline Tint operator*(Tint a, double k) {
    return {a.r * k, a.g * k, a.b * k};
}
inline Tint Glaze(Tint a, Tint b) {
    return {a.r * b.r / 255, a.g * b.g / 255, a.b * b.b / 255};
}

// A colour and how much of it covers what lies below, 0..1.
struct Dab {
    Tint tint;
    double cover = 0;
};

inline double Clamp01(double t) {
    return std::clamp(t, 0.0, 1.0);
}
inline double Mix(double a, double b, double t) {
    return a + (b - a) * t;
}
inline Point Mix(Point a, Point b, double t) {
    return a + (b - a) * t;
}
inline Tint Mix(Tint a, Tint b, double t) {
    return a * (1 - t) + b * t;
}

// 0 at and before `from`, 1 at and after `to`; `from` may be the larger.
inline double Ease(double from, double to, double t) {
    const double k = Clamp01((t - from) / (to - from));
    return k * k * (3 - 2 * k);
}

// A soft round spot of height 1 about `centre` with radii `spread`.
inline double Spot(Point p, Point centre, Point spread) {
    const double x = (p.x - centre.x) / spread.x;
    const double y = (p.y - centre.y) / spread.y;
    return std::exp(-x * x - y * y);
}

// The same spot on both sides of the middle.
inline double TwinSpots(Point p, Point centre, Point spread) {
    return Spot(p, centre, spread) + Spot({-p.x, p.y}, centre, spread);
}

struct RampStop {
    double at;
    Tint tint;
};

// The colour at t of a ramp whose stops ascend.
inline Tint Ramp(std::initializer_list<RampStop> stops, double t) {
    const RampStop* before = stops.begin();
    for (const RampStop& stop : stops) {
        if (t < stop.at) {
            const double gap = stop.at - before->at;
            return gap > 0 ? Mix(before->tint, stop.tint, Clamp01((t - before->at) / gap))
                           : stop.tint;
        }
        before = &stop;
    }
    return before->tint;
}

}  // namespace vendrel::portrait
