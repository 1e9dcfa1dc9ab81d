#pragma once

namespace vendrel {

/// What a brush can still paint.
struct PaintLimits {
    double SmallestMm2 = 25;  // no area is smaller
    double NarrowestMm = 2;   // every area holds a disc of this diameter

    bool operator==(const PaintLimits&) const = default;
};

/// What holds for areas with protected stipples: a third of both.
[[nodiscard]] constexpr PaintLimits ThirdOf(const PaintLimits& limits) {
    return {limits.SmallestMm2 / 3, limits.NarrowestMm / 3};
}

/// How much an area that is too small may cost to grow, for what it costs to give it up: 0 never
/// grows, 50 is usual, 100 grows wherever it can.
inline constexpr int kUsualDetail = 50;
inline constexpr int kMostDetail = 100;

}  // namespace vendrel
