#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "support/cell_queue.h"

namespace vendrel {

/// The first-in-first-out list of a walk over the pixels of a picture. Unlike CellQueue it leaves
/// it to the caller to know what is queued, who has a place for that beside each pixel, and it
/// appends without branching: whether a neighbour is wanted is as good as a coin's toss, and a
/// wrong guess of the processor costs more than all the rest of a step.
class WalkQueue {
  public:
    [[nodiscard]] bool Empty() const { return first_ == end_; }
    /// Takes the front; the queue must not be empty.
    CellPos Pop() {
        const std::uint32_t packed = ring_[first_++ & mask_];
        return {static_cast<int>(packed & 0xFFFF), static_cast<int>(packed >> 16)};
    }
    /// Makes room for `more` positions.
    void Reserve(std::size_t more) {
        if (end_ - first_ + more > ring_.size()) {
            Grow();
        }
    }
    /// Appends a position of 0..65535 each way, if `wanted`. There must be room for it either way.
    void PushIf(bool wanted, CellPos at) {
        ring_[end_ & mask_] =
            static_cast<std::uint32_t>(at.Y) << 16 | static_cast<std::uint32_t>(at.X);
        end_ += wanted ? 1 : 0;
    }

  private:
    void Grow() {
        std::vector<std::uint32_t> larger(std::max<std::size_t>(256, ring_.size() * 2));
        for (std::size_t i = first_; i != end_; ++i) {
            larger[i - first_] = ring_[i & mask_];
        }
        end_ -= first_;
        first_ = 0;
        ring_ = std::move(larger);
        mask_ = ring_.size() - 1;
    }

    std::vector<std::uint32_t> ring_;  // size is a power of two
    std::size_t mask_ = 0;
    std::size_t first_ = 0;  // counts on; only the lower bits are a place in the ring
    std::size_t end_ = 0;
};

}  // namespace vendrel
