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
    constexpr double kPowerOf25 = 6103515625;
    const double square = chroma * chroma;
    const double power = square * square * square * chroma;
    return std::sqrt(power / (power + kPowerOf25));
}

// Lightness, chroma and hue with reds stretched where chroma is low.
struct Lch {
    double L;
    double C;
    double H;
};

Lch Stretched(const Lab& lab, double stretch) {
    const double a = lab.A * stretch;
    return {lab.L, std::sqrt(a * a + lab.B * lab.B), HueOf(a, lab.B)};
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

// A direction, as its cosine and sine.
struct Angle {
    double Cos;
    double Sin;

    explicit Angle(double degrees)
        : Cos(std::cos(degrees * kDegree)), Sin(std::sin(degrees * kDegree)) {}
    Angle(double cosine, double sine) : Cos(cosine), Sin(sine) {}

    friend Angle operator+(const Angle& a, const Angle& b) {
        return {a.Cos * b.Cos - a.Sin * b.Sin, a.Sin * b.Cos + a.Cos * b.Sin};
    }
};

// 1 - 0.17 cos(h - 30) + 0.24 cos(2 h) + 0.32 cos(3 h + 6) - 0.20 cos(4 h - 63). Photos are
// compared pixel by pixel, and cosines are most of what that costs: one is reckoned, the others
// added up.
double HueWeight(double hue) {
    static const Angle kBack30(-30);
    static const Angle kOn6(6);
    static const Angle kBack63(-63);
    const Angle once(hue);
    const Angle twice = once + once;
    return 1 - 0.17 * (once + kBack30).Cos + 0.24 * twice.Cos + 0.32 * (twice + once + kOn6).Cos -
           0.20 * (twice + twice + kBack63).Cos;
}

// How far blues of that chroma are turned towards each other; next to nothing elsewhere.
double BlueTurn(double hue, double chroma) {
    constexpr double kFarFromBlue = 40;  // e to the power of that is beyond a double's digits
    const double blueness = (hue - 275) / 25;
    const double square = blueness * blueness;
    return square > kFarFromBlue
               ? 0
               : 2 * SeventhPowerShare(chroma) * std::sin(60 * std::exp(-square) * kDegree);
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
    return std::sqrt(byLightness * byLightness + byChroma * byChroma + byHue * byHue -
                     BlueTurn(hue, chroma) * byChroma * byHue);
}

double SeenDifference(const Lab& stipple, const Lab& paint) {
    return Ciede2000(stipple, paint) + 0.5 * std::max(0.0, ChromaOf(paint) - ChromaOf(stipple));
}

}  // namespace vendrel
