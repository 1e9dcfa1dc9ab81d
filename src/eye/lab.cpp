#include "eye/lab.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace vendrel {
namespace {

using Levels = std::array<double, 256>;

// Light that a screen gives off for each level of a channel.
const Levels& LightOfLevels() {
    static const Levels kLight = [] {
        Levels light{};
        for (std::size_t i = 0; i < light.size(); ++i) {
            const double level = static_cast<double>(i) / 255;
            light[i] = level <= 0.04045 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
        }
        return light;
    }();
    return kLight;
}

double Compressed(double share) {
    constexpr double kLinearUpTo = 216.0 / 24389;
    return share > kLinearUpTo ? std::cbrt(share) : (24389.0 / 27 * share + 16) / 116;
}

}  // namespace

double LightOf(int level) {
    return LightOfLevels()[static_cast<std::size_t>(level)];
}

Lab LabOf(Color color) {
    const double red = LightOf(RedOf(color));
    const double green = LightOf(GreenOf(color));
    const double blue = LightOf(BlueOf(color));
    // Shares of the white point, so that white comes out without chroma.
    const double x = (0.4124564 * red + 0.3575761 * green + 0.1804375 * blue) / 0.95047;
    const double y = 0.2126729 * red + 0.7151522 * green + 0.0721750 * blue;
    const double z = (0.0193339 * red + 0.1191920 * green + 0.9503041 * blue) / 1.08883;
    const double fx = Compressed(x);
    const double fy = Compressed(y);
    const double fz = Compressed(z);
    return {116 * fy - 16, 500 * (fx - fy), 200 * (fy - fz)};
}

Color ColorOfLab(const Lab& lab) {
    const auto share = [](double f) {
        const double cube = f * f * f;
        return cube > 216.0 / 24389 ? cube : (116 * f - 16) * 27 / 24389;
    };
    const double fy = (lab.L + 16) / 116;
    const double x = 0.95047 * share(fy + lab.A / 500);
    const double y = share(fy);
    const double z = 1.08883 * share(fy - lab.B / 200);
    const auto level = [](double light) {
        const double shown =
            light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
        return static_cast<int>(std::lround(std::clamp(shown, 0.0, 1.0) * 255));
    };
    return Rgb(level(3.2404542 * x - 1.5371385 * y - 0.4985314 * z),
               level(-0.9692660 * x + 1.8760108 * y + 0.0415560 * z),
               level(0.0556434 * x - 0.2040259 * y + 1.0572252 * z));
}

double ChromaOf(const Lab& lab) {
    return std::sqrt(lab.A * lab.A + lab.B * lab.B);
}

double HueAngleOf(const Lab& lab) {
    constexpr double kGrayChroma = 6;  // below it a paint has no hue to the eye
    constexpr double kBehindAll = 10;
    return ChromaOf(lab) < kGrayChroma ? kBehindAll : std::atan2(lab.B, lab.A);
}

}  // namespace vendrel
