#include "noise.h"

#include <cmath>

namespace vendrel::portrait {

namespace {

std::uint64_t Scramble(std::uint64_t z) {
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31U);
}

double ToUnit(std::uint64_t bits) {
    return static_cast<double>(bits >> 11U) * 0x1.0p-53;
}

double Corner(std::int64_t x, std::int64_t y, std::uint32_t seed) {
    const auto ux = static_cast<std::uint64_t>(x);
    const auto uy = static_cast<std::uint64_t>(y);
    return ToUnit(Scramble(ux * 0x9E3779B97F4A7C15U + Scramble(uy + seed * 0xD1B54A32D192ED03U)));
}

}  // namespace

double Chance::Next() {
    state_ += 0x9E3779B97F4A7C15U;
    return ToUnit(Scramble(state_));
}

double Noise(Point p, std::uint32_t seed) {
    const double left = std::floor(p.x);
    const double top = std::floor(p.y);
    const auto x = static_cast<std::int64_t>(left);
    const auto y = static_cast<std::int64_t>(top);
    const double across = Ease(0, 1, p.x - left);
    const double upper = Mix(Corner(x, y, seed), Corner(x + 1, y, seed), across);
    const double lower = Mix(Corner(x, y + 1, seed), Corner(x + 1, y + 1, seed), across);
    return Mix(upper, lower, Ease(0, 1, p.y - top));
}

double CloudNoise(Point p, std::uint32_t seed) {
    double sum = 0;
    double weight = 0.5;
    for (std::uint32_t octave = 0; octave < 4; ++octave) {
        sum += weight * Noise(p, seed + octave);
        p = Point{p.x * 1.6 + p.y * 1.2, p.y * 1.6 - p.x * 1.2};
        weight /= 2;
    }
    return sum / 0.9375;
}

}  // namespace vendrel::portrait
