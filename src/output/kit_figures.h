#pragma once

#include <array>

#include "paintable/area_figures.h"
#include "shell/workplace.h"

namespace vendrel {

/// Areas of the painting, pixels touching side by side, in classes of their size.
inline constexpr std::array kAreaClassesMm2 = {9.0, 25.0, 100.0, 400.0};  // where each ends

/// What a kit asks of a brush.
struct KitFigures {
    double CanvasCm = 0;  // the width that they hold for
    int Areas = 0;
    std::array<int, kAreaClassesMm2.size() + 1> BySize{};
    int BelowLimits = 0;  // areas smaller or narrower than the limits chosen
    double SmallestMm2 = 0;
    double NarrowestMm = 0;
    double Hours = 0;
};

/// Of the painting as it is now. Areas without paint do not count. Throws Error for an unpainted
/// picture.
[[nodiscard]] KitFigures MeasureKit(const Workplace& place);

/// Whether so many areas are below the limits that a painter should know before starting.
[[nodiscard]] bool IsHardToPaint(const KitFigures& figures);

/// Hours of painting: 20 seconds for every area and a minute for every 10 square centimeters.
[[nodiscard]] double PaintingHours(int areas, double mm2);

/// How far a painting is from its photo, as mean CIEDE2000.
struct SeenFigures {
    double Pixels = 0;        // pixel by pixel
    double AtArmsLength = 0;  // both blurred
};

/// Of the painting and the photo it was made of.
[[nodiscard]] SeenFigures CompareWithPhoto(const Workplace& place);

}  // namespace vendrel
