#pragma once

#include <cmath>
#include <cstdint>

#include "support/surface.h"

namespace vendrel::bench {

/// A repeatable picture with what makes photos hard: soft gradients, edges at all angles, and grain
/// from leaf size down to single pixels.
class Scene {
  public:
    [[nodiscard]] static Surface Paint(int width, int height) {
        Surface picture(width, height);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                picture.Set(x, y, At(960.0 * x / width, 720.0 * y / height));
            }
        }
        return picture;
    }

  private:
    static std::uint32_t Hash(std::uint32_t x, std::uint32_t y) {
        std::uint32_t h = x * 374761393U + y * 668265263U;
        h = (h ^ (h >> 13U)) * 1274126177U;
        return h ^ (h >> 16U);
    }
    static double Lattice(int x, int y) {
        return Hash(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y)) / 4294967295.0;
    }
    static double Noise(double x, double y) {
        const int column = static_cast<int>(std::floor(x));
        const int row = static_cast<int>(std::floor(y));
        const double fx = x - column;
        const double fy = y - row;
        const double top = std::lerp(Lattice(column, row), Lattice(column + 1, row), fx);
        const double low = std::lerp(Lattice(column, row + 1), Lattice(column + 1, row + 1), fx);
        return std::lerp(top, low, fy);
    }
    static double Grain(double x, double y) {
        double sum = 0;
        double weight = 0.5;
        for (const double size : {160.0, 64.0, 25.6, 10.24, 4.096, 1.6384}) {
            sum += weight * (Noise(x / size, y / size) - 0.5);
            weight *= 0.55;
        }
        return sum;
    }
    static Color Mix(double red, double green, double blue, double light) {
        const auto channel = [light](double value) {
            return static_cast<int>(std::fmin(255, std::fmax(1, value * light)));
        };
        return Rgb(channel(red), channel(green), channel(blue));
    }
    static Color At(double x, double y) {
        const double grain = Grain(x, y);
        const double face = std::hypot((x - 480) / 170, (y - 330) / 220);
        if (face + 0.4 * grain < 1) {
            return Mix(225, 170, 140, 1.15 - 0.55 * face + grain);
        }
        if (y + 120 * grain > 520) {
            return Mix(70, 110, 50, 0.8 + 1.6 * grain);
        }
        if (std::hypot((x - 480) / 230, (y - 300) / 270) + 0.3 * grain < 1) {
            return Mix(90, 60, 40, 0.9 + 1.2 * grain);
        }
        return Mix(120 + y / 8, 160 + y / 10, 215, 0.9 + 0.5 * grain);
    }
};

}  // namespace vendrel::bench
