#pragma once

#include <span>
#include <string>
#include <vector>

#include "shell/records.h"

namespace vendrel {

/// A paint that could stand in for another.
struct NextBestPaint {
    PaintColor Paint;
    double Difference = 0;  // length of the difference of the channels, 0 (same) to 441.7
};

/// The distance of two paints' colours, 0 to 441.7.
[[nodiscard]] double PaintDifference(const PaintColor& a, const PaintColor& b);

/// The `count` paints of `candidates` nearest to `wanted`, nearest first, equally near ones in
/// the order of the candidates. Paints of `taken` are left out, also those that only share their
/// colour with one of them: two paints of one colour would become one. Of candidates with one
/// identity the first stands.
[[nodiscard]] std::vector<NextBestPaint> FindNextBest(const PaintColor& wanted,
                                                      std::span<const PaintColor> candidates,
                                                      const PaintList& taken, int count);

}  // namespace vendrel
