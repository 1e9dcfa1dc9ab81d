#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "support/surface.h"

namespace vendrel {

/// How the pixels of one axis are made from those of another length: a shrunk axis averages over
/// exactly the stretch that each target pixel covers, an enlarged one blends the two source pixels
/// whose centres are nearest. Weights are whole numbers.
class AxisWeights {
  public:
    /// Both lengths 1..2^20.
    AxisWeights(int from, int to);

    [[nodiscard]] int First(int target) const { return first_[static_cast<std::size_t>(target)]; }
    [[nodiscard]] int Last(int target) const {
        return First(target) + static_cast<int>(Of(target).size()) - 1;
    }
    /// Weights of the source pixels First(target)..Last(target).
    [[nodiscard]] std::span<const float> Of(int target) const {
        const auto at = static_cast<std::size_t>(target);
        return std::span(weights_).subspan(start_[at], start_[at + 1] - start_[at]);
    }
    /// The sum of every target's weights.
    [[nodiscard]] double Total() const { return total_; }

  private:
    void AddCovered(std::int64_t from, std::int64_t to, std::int64_t target);
    void AddBlended(std::int64_t from, std::int64_t to, std::int64_t target);

    double total_ = 1;
    std::vector<int> first_;
    std::vector<std::size_t> start_{0};
    std::vector<float> weights_;
};

enum class RowOrder { TopDown, BottomUp };

/// Scales a picture whose rows come one after the other, and holds none of them longer than needed:
/// a photo can be far larger than what memory would take decoded.
class RowScaler {
  public:
    /// Sides in pixels, all 1..2^20. Rows then come in `order`.
    struct Sides {
        int FromWidth;
        int FromHeight;
        int Width;
        int Height;
    };
    RowScaler(Sides sides, RowOrder order);

    /// The next source row.
    void Push(std::span<const Color> row);
    /// The scaled picture, once every row was pushed.
    [[nodiscard]] Surface Take() { return std::move(picture_); }

  private:
    void Add(std::span<const Color> row, float weight);
    void Finish(int targetRow);
    [[nodiscard]] std::span<Color> TargetRow(int y);

    Sides sides_;
    RowOrder order_;
    AxisWeights across_;
    AxisWeights down_;
    Surface picture_;
    std::vector<float> sums_;      // the target row in work: its reds, greens, blues, source width
    std::vector<Color> previous_;  // kept while the picture grows downwards
    int row_ = 0;
    int target_ = 0;
};

/// The picture at another size: the same size is an exact copy, a smaller one the average over the
/// area that each pixel covers, a larger one smooth. Sides in pixels; nothing comes of nothing.
[[nodiscard]] Surface ScaleTo(const Surface& picture, int width, int height);

}  // namespace vendrel
