#include "support/position_ring.h"

#include <algorithm>
#include <utility>

namespace vendrel {

void PositionRing::Grow() {
    std::vector<Entry> larger(std::max<std::size_t>(256, ring_.size() * 2));
    for (std::size_t i = first_; i != end_; ++i) {
        larger[i - first_] = ring_[i & mask_];
    }
    end_ -= first_;
    first_ = 0;
    ring_ = std::move(larger);
    mask_ = ring_.size() - 1;
}

}  // namespace vendrel
