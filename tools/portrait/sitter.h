#pragma once

#include <array>

#include "canvas.h"
#include "curve.h"
#include "tint.h"

// The sitter's measures are half face widths: x to the viewer's right from the middle of the face,
// y down from the line of the eyes; the chin lies at 1.45, the shoulders at about 2.4.
namespace vendrel::portrait {

inline constexpr double kScale = 152;
inline constexpr Point kPlace{364, 396};

// The head leans a little; below the chin the lean fades away, so that the hair falls straight.
inline double Lean(double y) {
    return -0.075 * Ease(2.6, 1.4, y);
}
inline constexpr Point kPivot{0, 1.5};

inline Point Turned(Point p, double angle) {
    const Point d = p - kPivot;
    return kPivot + Point{d.x * std::cos(angle) - d.y * std::sin(angle),
                          d.x * std::sin(angle) + d.y * std::cos(angle)};
}

inline Point OnPicture(Point body) {
    return kPlace + body * kScale;
}
inline Point OnBody(Point picture) {
    return (picture - kPlace) * (1 / kScale);
}
inline Point HeadOnPicture(Point head) {
    return OnPicture(Turned(head, Lean(head.y)));
}
// Exact down to the chin, where the lean is the same everywhere.
inline Point OnHead(Point picture) {
    return Turned(OnBody(picture), -Lean(0));
}

inline Path HeadOnPicture(Path path) {
    for (Point& p : path)
        p = HeadOnPicture(p);
    return path;
}

// How brightly the window lights a relief `height(Point)` at p, 0..1.
template <class Height>
double Daylight(Height height, Point p) {
    constexpr double kStep = 0.006;
    const double slopeX = (height(p + Point{kStep, 0}) - height(p - Point{kStep, 0})) / (2 * kStep);
    const double slopeY = (height(p + Point{0, kStep}) - height(p - Point{0, kStep})) / (2 * kStep);
    const double length = std::sqrt(1 + slopeX * slopeX + slopeY * slopeY);
    // The window is high on the left, in front of her.
    const double facing = (0.50 * slopeX + 0.42 * slopeY + 0.76) / length;
    return Clamp01(0.23 + 0.755 * facing);
}

inline Tint Skin(double light) {
    return Ramp({{0.00, {70, 38, 34}},
                 {0.22, {122, 70, 58}},
                 {0.42, {172, 112, 90}},
                 {0.58, {208, 152, 124}},
                 {0.72, {230, 184, 154}},
                 {0.86, {243, 210, 184}},
                 {1.00, {253, 234, 214}}},
                light);
}

void PaintBackdrop(Canvas& canvas);
void PaintBackHair(Canvas& canvas);
void PaintBust(Canvas& canvas);
void PaintFace(Canvas& canvas);
void PaintFeatures(Canvas& canvas);
void PaintFrontHair(Canvas& canvas);

}  // namespace vendrel::portrait
