#include "paints/nearest_paint.h"

#include <algorithm>
#include <limits>

namespace vendrel {

NearestPaintTable::NearestPaintTable(const PaintList& paints)
    : blocks_(kBlocksPerAxis * kBlocksPerAxis * kBlocksPerAxis) {
    for (int i = 1; i <= paints.Count(); ++i) {
        paints_.push_back({paints[i].Red, paints[i].Green, paints[i].Blue, i});
    }
    red_ = BoundsOf(paints_, &Candidate::Red);
    green_ = BoundsOf(paints_, &Candidate::Green);
    blue_ = BoundsOf(paints_, &Candidate::Blue);
}

NearestPaintTable::AxisBounds NearestPaintTable::BoundsOf(std::span<const Candidate> paints,
                                                          int Candidate::*channel) {
    AxisBounds bounds;
    for (std::size_t block = 0; block < kBlocksPerAxis; ++block) {
        const int low = static_cast<int>(block) * kBlockEdge;
        const int high = low + kBlockEdge - 1;
        for (const Candidate& paint : paints) {
            const int value = paint.*channel;
            const int near = std::max({low - value, value - high, 0});
            const int far = std::max(value - low, high - value);
            bounds.Nearest[block].push_back(near * near);
            bounds.Furthest[block].push_back(far * far);
        }
    }
    return bounds;
}

// A paint whose nearest corner lies beyond another paint's furthest corner is nearest to nothing
// in the block. Equality keeps it: the later of two equally near paints wins.
NearestPaintTable::Block NearestPaintTable::SortOut(std::size_t red, std::size_t green,
                                                    std::size_t blue) {
    const std::size_t count = paints_.size();
    const int* farRed = red_.Furthest[red].data();
    const int* farGreen = green_.Furthest[green].data();
    const int* farBlue = blue_.Furthest[blue].data();
    int reach = std::numeric_limits<int>::max();
    for (std::size_t i = 0; i < count; ++i) {
        reach = std::min(reach, farRed[i] + farGreen[i] + farBlue[i]);
    }
    const int* nearRed = red_.Nearest[red].data();
    const int* nearGreen = green_.Nearest[green].data();
    const int* nearBlue = blue_.Nearest[blue].data();
    const std::size_t first = candidates_.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (nearRed[i] + nearGreen[i] + nearBlue[i] <= reach) {
            candidates_.push_back(paints_[i]);
        }
    }
    return {static_cast<std::uint32_t>(first),
            static_cast<std::uint32_t>(candidates_.size() - first)};
}

int NearestPaintTable::Find(const Channels& color) {
    if (paints_.empty()) {
        return 0;
    }
    const std::size_t red = static_cast<std::size_t>(color.Red) / kBlockEdge;
    const std::size_t green = static_cast<std::size_t>(color.Green) / kBlockEdge;
    const std::size_t blue = static_cast<std::size_t>(color.Blue) / kBlockEdge;
    Block& block = blocks_[(red * kBlocksPerAxis + green) * kBlocksPerAxis + blue];
    if (block.Count == 0) {
        block = SortOut(red, green, blue);
    }
    int best = kLargestSquaredDistance;
    int nearest = 0;
    for (const Candidate& paint : std::span(candidates_).subspan(block.First, block.Count)) {
        const int distance = SquaredDistance(paint, color);
        if (distance <= best) {
            best = distance;
            nearest = paint.Index;
        }
    }
    return nearest;
}

}  // namespace vendrel
