#include "support/cell_queue.h"

#include <algorithm>

namespace vendrel {

CellQueue::CellQueue(int across, int down)
    : stride_(static_cast<std::size_t>(across) + 2),
      queued_(stride_ * (static_cast<std::size_t>(down) + 2)),
      ring_(64) {}

void CellQueue::Grow() {
    std::vector<CellPos> larger(std::max<std::size_t>(64, ring_.size() * 2));
    for (std::size_t i = 0; i < count_; ++i) {
        larger[i] = ring_[(first_ + i) & (ring_.size() - 1)];
    }
    ring_ = std::move(larger);
    first_ = 0;
}

}  // namespace vendrel
