#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "shell/records.h"

namespace vendrel {

/// A colour as three channels, 0..255.
struct Channels {
    int Red = 0;
    int Green = 0;
    int Blue = 0;
    bool operator==(const Channels&) const = default;
};

/// From black to white: no two colours lie further apart.
inline constexpr int kLargestSquaredDistance = 3 * 255 * 255;

/// Ordering paints by this whole number orders them exactly as by the length in single precision:
/// the sums stay below 2^24, and so far down the roots of neighbouring numbers stay apart.
template <class Paint>
[[nodiscard]] constexpr int SquaredDistance(const Paint& paint, const Channels& color) {
    const int red = color.Red - paint.Red;
    const int green = color.Green - paint.Green;
    const int blue = color.Blue - paint.Blue;
    return red * red + green * green + blue * blue;
}

/// Index of the paint nearest to `color`, the later of equally near ones. Entry `skip` is left out;
/// 0 when no paint is left.
template <class Paint>
[[nodiscard]] int FindNearest(const OneBased<Paint>& paints, const Channels& color, int skip) {
    int best = kLargestSquaredDistance;
    int nearest = 0;
    for (int i = 1; i <= paints.Count(); ++i) {
        const int distance = SquaredDistance(paints[i], color);
        if (distance <= best && i != skip) {
            best = distance;
            nearest = i;
        }
    }
    return nearest;
}

/// FindNearest for many colours and one palette. The colour cube is cut into blocks; the first
/// colour of a block sorts out the few paints that can be nearest to any colour in it, so that a
/// photo costs about the same with a catalogue of fifty paints as with a thousand.
class NearestPaintTable {
  public:
    explicit NearestPaintTable(const PaintList& paints);

    /// As FindNearest without a skipped paint. `color` must have channels of 0..255.
    [[nodiscard]] int Find(const Channels& color);

  private:
    static constexpr int kBlockEdge = 16;
    static constexpr std::size_t kBlocksPerAxis = 256 / kBlockEdge;

    struct Candidate {
        int Red = 0;
        int Green = 0;
        int Blue = 0;
        int Index = 0;
    };
    struct Block {
        std::uint32_t First = 0;
        std::uint32_t Count = 0;  // 0 while no colour has asked for the block
    };
    /// Per block of one axis, the squared distance of every paint to the block's nearest and
    /// furthest value.
    struct AxisBounds {
        std::array<std::vector<int>, kBlocksPerAxis> Nearest;
        std::array<std::vector<int>, kBlocksPerAxis> Furthest;
    };

    [[nodiscard]] static AxisBounds BoundsOf(std::span<const Candidate> paints,
                                             int Candidate::*channel);
    [[nodiscard]] Block SortOut(std::size_t red, std::size_t green, std::size_t blue);

    std::vector<Candidate> paints_;
    AxisBounds red_;
    AxisBounds green_;
    AxisBounds blue_;
    std::vector<Block> blocks_;
    std::vector<Candidate> candidates_;  // of all blocks asked for, each block's in palette order
};

}  // namespace vendrel
