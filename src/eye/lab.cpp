#include "eye/lab.h"

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

double ChromaOf(const Lab& lab) {
    return std::sqrt(lab.A * lab.A + lab.B * lab.B);
}

}  // namespace vendrel
