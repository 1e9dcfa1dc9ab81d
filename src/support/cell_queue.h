#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "support/position_ring.h"

namespace vendrel {

/// First-in-first-out list of grid positions that holds each position at most once at a time.
/// The check for a position already queued costs one look instead of a walk through the list.
class CellQueue {
  public:
    CellQueue() = default;
    /// Positions 0..across+1, 0..down+1: a seed's neighbours may lie one past the grid.
    CellQueue(int across, int down)
        : stride_(static_cast<std::size_t>(across) + 2),
          queued_(stride_ * (static_cast<std::size_t>(down) + 2)) {}

    /// Appends a position unless it waits in the queue already; answers whether it was appended.
    bool Push(CellPos pos) {
        std::uint8_t& queued = queued_[At(pos)];
        const bool wanted = queued == 0;
        queued = 1;
        PositionRing::Tail(ring_, 1).PushIf(wanted, pos.X, pos.Y);
        return wanted;
    }
    [[nodiscard]] bool Empty() const { return ring_.Empty(); }
    [[nodiscard]] std::size_t Size() const { return ring_.Size(); }
    [[nodiscard]] CellPos Front() const { return ring_.Front().At(); }
    /// Drops the front; the queue must not be empty.
    void Pop() { queued_[At(ring_.Pop().At())] = 0; }

  private:
    [[nodiscard]] std::size_t At(CellPos pos) const {
        return static_cast<std::size_t>(pos.Y) * stride_ + static_cast<std::size_t>(pos.X);
    }

    std::size_t stride_ = 0;
    std::vector<std::uint8_t> queued_;
    PositionRing ring_;
};

}  // namespace vendrel
