#pragma once

#include <cstdint>

#include "tint.h"

namespace vendrel::portrait {

// Random numbers that are the same on every machine, so that the picture is too.
class Chance {
  public:
    explicit Chance(std::uint64_t seed) : state_(seed) {}

    double Next();  // 0..1
    double Between(double low, double high) { return Mix(low, high, Next()); }

  private:
    std::uint64_t state_;
};

// Smooth noise, 0..1, about one bump per unit.
double Noise(Point p, std::uint32_t seed);

// Four octaves of it, 0..1: clouds, leaves, worn canvas.
double CloudNoise(Point p, std::uint32_t seed);

}  // namespace vendrel::portrait
