#include "eye/seen_difference.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vendrel {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

// Degrees 0..360; 0 for gray.
double HueOf(double a, double b) {
    const double hue = a == 0 && b == 0 ? 0 : std::atan2(b, a) / kDegree;
    return hue < 0 ? hue + 360 : hue;
}

double SeventhPowerShare(double chroma) {
    const double power = std::pow(chroma, 7);
    return std::sqrt(power / (power + std::pow(25.0, 7)));
}

// Lightness, chroma and hue with reds stretched where chroma is low.
struct Lch {
    double L;
    double C;
    double H;
};

Lch Stretched(const Lab& lab, double stretch) {
    const double a = lab.A * stretch;
    return {lab.L, std::hypot(a, lab.B), HueOf(a, lab.B)};
}

double MeanHue(const Lch& one, const Lch& other) {
    const double sum = one.H + other.H;
    if (one.C * other.C == 0) {
        return sum;
    }
    if (std::abs(one.H - other.H) <= 180) {
        return sum / 2;
    }
    return sum < 360 ? (sum + 360) / 2 : (sum - 360) / 2;
}

double HueStep(const Lch& one, const Lch& other) {
    if (one.C * other.C == 0) {
        return 0;
    }
    double step = other.H - one.H;
    step = step > 180 ? step - 360 : step < -180 ? step + 360 : step;
    return 2 * std::sqrt(one.C * other.C) * std::sin(step / 2 * kDegree);
}

double HueWeight(double hue) {
    return 1 - 0.17 * std::cos((hue - 30) * kDegree) + 0.24 * std::cos(2 * hue * kDegree) +
           0.32 * std::cos((3 * hue + 6) * kDegree) - 0.20 * std::cos((4 * hue - 63) * kDegree);
}

}  // namespace

double Ciede2000(const Lab& one, const Lab& other) {
    const double stretch = 1.5 - 0.5 * SeventhPowerShare((ChromaOf(one) + ChromaOf(other)) / 2);
    const Lch from = Stretched(one, stretch);
    const Lch to = Stretched(other, stretch);
    const double lightness = (from.L + to.L) / 2 - 50;
    const double chroma = (from.C + to.C) / 2;
    const double hue = MeanHue(from, to);
    const double byLightness = (to.L - from.L) / (1 + 0.015 * lightness * lightness /
                                                          std::sqrt(20 + lightness * lightness));
    const double byChroma = (to.C - from.C) / (1 + 0.045 * chroma);
    const double byHue = HueStep(from, to) / (1 + 0.015 * chroma * HueWeight(hue));
    const double blueness = (hue - 275) / 25;
    const double turn =
        2 * SeventhPowerShare(chroma) * std::sin(60 * std::exp(-blueness * blueness) * kDegree);
    return std::sqrt(byLightness * byLightness + byChroma * byChroma + byHue * byHue -
                     turn * byChroma * byHue);
}

double SeenDifference(const Lab& stipple, const Lab& paint) {
    return Ciede2000(stipple, paint) + 0.5 * std::max(0.0, ChromaOf(paint) - ChromaOf(stipple));
}

}  // namespace vendrel
