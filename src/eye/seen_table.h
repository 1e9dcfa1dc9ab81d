#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "support/color.h"

namespace vendrel {

/// Seen differences in whole 256ths, so that sums and ties are exact whatever their order.
using Seen = std::uint16_t;
inline constexpr int kSeenUnit = 256;

/// The seen difference of every color to every paint. Both count from 0 here.
class SeenTable {
  public:
    SeenTable() = default;
    SeenTable(std::span<const Color> colors, std::span<const Color> paints);

    [[nodiscard]] int ColorCount() const { return colors_; }
    [[nodiscard]] int PaintCount() const { return static_cast<int>(paints_); }
    /// By paint.
    [[nodiscard]] std::span<const Seen> Of(int color) const {
        return {seen_.data() + static_cast<std::size_t>(color) * paints_, paints_};
    }
    /// The paint that differs least from a color, the first of equals.
    [[nodiscard]] int NearestTo(int color) const;

  private:
    int colors_ = 0;
    std::size_t paints_ = 0;
    std::vector<Seen> seen_;
};

/// What the colors of a photo's stipples are: each once, in ascending order.
struct DistinctColors {
    std::vector<Color> Colors;
    std::vector<int> IndexOf;  // per stipple
};

[[nodiscard]] DistinctColors FindDistinctColors(std::span<const Color> stipples);

}  // namespace vendrel
