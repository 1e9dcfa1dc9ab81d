#include "eye/blur.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>
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

// Adds to each sum what lies at its place and `apart` behind.
void AddBothSides(std::span<const float> wide, std::size_t apart, float weight,
                  std::span<float> sums) {
    for (std::size_t x = 0; x < sums.size(); ++x) {
        sums[x] += weight * (wide[x] + wide[x + apart]);
    }
}

// Blurs along rows and hands the rows back as columns, so that twice does both ways.
Plane BlurredAndTurned(const Plane& plane, int width, int height,
                       const std::vector<float>& weights) {
    const std::size_t reach = weights.size() - 1;
    const auto across = static_cast<std::size_t>(width);
    Plane turned(plane.size());
    Plane wide(across + 2 * reach);  // the row between copies of its ends
    Plane sums(across);
    for (int y = 0; y < height; ++y) {
        const auto row = std::span(plane).subspan(static_cast<std::size_t>(y) * across, across);
        std::ranges::fill(wide, row.front());
        std::ranges::copy(row, wide.begin() + static_cast<std::ptrdiff_t>(reach));
        std::fill_n(wide.rbegin(), reach, row.back());
        for (std::size_t x = 0; x < across; ++x) {
            sums[x] = row[x] * weights[0];
        }
        for (std::size_t i = 1; i <= reach; ++i) {
            AddBothSides(std::span(wide).subspan(reach - i), 2 * i, weights[i], sums);
        }
        for (std::size_t x = 0; x < across; ++x) {
            turned[x * static_cast<std::size_t>(height) + static_cast<std::size_t>(y)] = sums[x];
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

// Levels by their light.
class LightLevels {
  public:
    LightLevels() {
        for (int i = 0; i < 255; ++i) {
            between_.at(static_cast<std::size_t>(i)) =
                static_cast<float>((LightOf(i) + LightOf(i + 1)) / 2);
        }
        for (std::size_t step = 0; step < lowest_.size(); ++step) {
            const float light = static_cast<float>(step) / kSteps;
            lowest_.at(step) =
                static_cast<int>(std::ranges::upper_bound(between_, light) - between_.begin());
        }
    }

    /// The one whose light is nearest.
    [[nodiscard]] int NearestTo(float light) const {
        const auto step = static_cast<std::size_t>(std::clamp(light, 0.0F, 1.0F) * kSteps);
        int level = lowest_[step];
        while (level < 255 && between_[static_cast<std::size_t>(level)] <= light) {
            ++level;
        }
        return level;
    }

  private:
    static constexpr int kSteps = 4096;

    std::array<float, 255> between_{};
    std::array<int, kSteps + 1> lowest_{};  // of a step of light
};

}  // namespace

Surface Blurred(const Surface& picture, double sigma) {
    if (sigma <= 0 || picture.Empty()) {
        return picture;
    }
    const std::vector<float> weights = BellCurve(sigma);
    const Plane red = BlurredLight(picture, RedOf, weights);
    const Plane green = BlurredLight(picture, GreenOf, weights);
    const Plane blue = BlurredLight(picture, BlueOf, weights);
    static const LightLevels kLevels;
    Surface blurred(picture.Width(), picture.Height());
    std::size_t at = 0;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x, ++at) {
            blurred.Set(x, y,
                        Rgb(kLevels.NearestTo(red[at]), kLevels.NearestTo(green[at]),
                            kLevels.NearestTo(blue[at])));
        }
    }
    return blurred;
}

}  // namespace vendrel
