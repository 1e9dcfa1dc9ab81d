#include "eye/blur.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "eye/lab.h"

namespace vendrel {
namespace {

// Light of one channel, row by row.
using Plane = std::vector<float>;

std::vector<float> BellCurve(double sigma) {
    const int reach = static_cast<int>(std::ceil(3 * sigma));
    std::vector<float> weights(static_cast<std::size_t>(reach) + 1);
    double sum = 0;
    for (int i = 0; i <= reach; ++i) {
        const double weight = std::exp(-0.5 * i * i / (sigma * sigma));
        weights[static_cast<std::size_t>(i)] = static_cast<float>(weight);
        sum += i == 0 ? weight : 2 * weight;
    }
    for (float& weight : weights) {
        weight /= static_cast<float>(sum);
    }
    return weights;
}

// Blurs along rows and hands the rows back as columns, so that twice does both ways.
Plane BlurredAndTurned(const Plane& plane, int width, int height,
                       const std::vector<float>& weights) {
    const int reach = static_cast<int>(weights.size()) - 1;
    Plane turned(plane.size());
    for (int y = 0; y < height; ++y) {
        const float* const row = plane.data() + static_cast<std::ptrdiff_t>(y) * width;
        for (int x = 0; x < width; ++x) {
            float sum = row[x] * weights[0];
            for (int i = 1; i <= reach; ++i) {
                sum += weights[static_cast<std::size_t>(i)] *
                       (row[std::max(x - i, 0)] + row[std::min(x + i, width - 1)]);
            }
            turned[static_cast<std::size_t>(x) * static_cast<std::size_t>(height) +
                   static_cast<std::size_t>(y)] = sum;
        }
    }
    return turned;
}

Plane BlurredLight(const Surface& picture, int (*channel)(Color),
                   const std::vector<float>& weights) {
    Plane plane;
    plane.reserve(static_cast<std::size_t>(picture.Width()) *
                  static_cast<std::size_t>(picture.Height()));
    for (int y = 0; y < picture.Height(); ++y) {
        for (const Color color : picture.Row(y)) {
            plane.push_back(static_cast<float>(LightOf(channel(color))));
        }
    }
    plane = BlurredAndTurned(plane, picture.Width(), picture.Height(), weights);
    return BlurredAndTurned(plane, picture.Height(), picture.Width(), weights);
}

// The level whose light is nearest.
int LevelOf(float light) {
    static const std::array<float, 255> kBetween = [] {
        std::array<float, 255> between{};
        for (int i = 0; i < 255; ++i) {
            between.at(static_cast<std::size_t>(i)) =
                static_cast<float>((LightOf(i) + LightOf(i + 1)) / 2);
        }
        return between;
    }();
    return static_cast<int>(std::ranges::upper_bound(kBetween, light) - kBetween.begin());
}

}  // namespace

Surface Blurred(const Surface& picture, double sigma) {
    if (sigma <= 0 || picture.Empty()) {
        return picture;
    }
    const std::vector<float> weights = BellCurve(sigma);
    const Plane red = BlurredLight(picture, RedOf, weights);
    const Plane green = BlurredLight(picture, GreenOf, weights);
    const Plane blue = BlurredLight(picture, BlueOf, weights);
    Surface blurred(picture.Width(), picture.Height());
    std::size_t at = 0;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x, ++at) {
            blurred.Set(x, y, Rgb(LevelOf(red[at]), LevelOf(green[at]), LevelOf(blue[at])));
        }
    }
    return blurred;
}

}  // namespace vendrel
