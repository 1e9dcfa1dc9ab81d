#pragma once

#include <vector>

#include "support/grid.h"

namespace vendrel {

/// How much ink a reader's eye sees of a symbol: a picture of it, 0 paper to 255 ink, blurred by a
/// Gaussian of that many pixels.
[[nodiscard]] Grid<double> Blurred(const ValueGrid& ink, double sigma);

/// How alike two blurred symbols of one size look: the largest correlation of one with the other
/// shifted by up to `reach` pixels each way; 1 for the same, about 0 for two that have nothing in
/// common.
[[nodiscard]] double LookAlike(const Grid<double>& one, const Grid<double>& other, int reach);

/// Symbols from the one that is told apart best to the one that is taken for another most easily:
/// from the most alike pair goes the one that is more like a third, until none is left, and those
/// that stayed longest come first. `alike` is symmetric; symbol i is its row i, counted from 0.
[[nodiscard]] std::vector<int> MostDistinctFirst(const std::vector<std::vector<double>>& alike);

}  // namespace vendrel
