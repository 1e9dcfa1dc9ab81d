#include "output/contrast.h"

#include <algorithm>
#include <cmath>

namespace vendrel {
namespace {

double LinearLight(int channel) {
    const double share = channel / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

}  // namespace

double LuminanceOf(Color color) {
    return 0.2126 * LinearLight(RedOf(color)) + 0.7152 * LinearLight(GreenOf(color)) +
           0.0722 * LinearLight(BlueOf(color));
}

double ContrastOf(Color one, Color other) {
    const auto [darker, lighter] = std::minmax({LuminanceOf(one), LuminanceOf(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

Color InkOn(Color paint) {
    return ContrastOf(paint, kBlack) >= ContrastOf(paint, kWhite) ? kBlack : kWhite;
}

}  // namespace vendrel
