#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vendrel {

/// A position on a grid: column X, row Y.
struct CellPos {
    int X = 0;
    int Y = 0;
    bool operator==(const CellPos&) const = default;
};

/// First-in-first-out list of grid positions that holds each position at most once at a time.
/// The check for a position already queued costs one look instead of a walk through the list.
class CellQueue {
  public:
    CellQueue() = default;
    /// Positions 0..across+1, 0..down+1: a seed's neighbours may lie one past the grid.
    CellQueue(int across, int down);

    /// Appends a position unless it waits in the queue already; answers whether it was appended.
    bool Push(CellPos pos) {
        std::uint8_t& queued = queued_[At(pos)];
        if (queued != 0) {
            return false;
        }
        queued = 1;
        if (count_ == ring_.size()) {
            Grow();
        }
        ring_[(first_ + count_) & (ring_.size() - 1)] = pos;
        ++count_;
        return true;
    }
    [[nodiscard]] bool Empty() const { return count_ == 0; }
    [[nodiscard]] std::size_t Size() const { return count_; }
    [[nodiscard]] CellPos Front() const { return ring_[first_]; }
    /// Drops the front; the queue must not be empty.
    void Pop() {
        queued_[At(ring_[first_])] = 0;
        first_ = (first_ + 1) & (ring_.size() - 1);
        --count_;
    }

  private:
    [[nodiscard]] std::size_t At(CellPos pos) const {
        return static_cast<std::size_t>(pos.Y) * stride_ + static_cast<std::size_t>(pos.X);
    }
    void Grow();

    std::size_t stride_ = 0;
    std::vector<std::uint8_t> queued_;
    std::vector<CellPos> ring_;  // size is a power of two
    std::size_t first_ = 0;
    std::size_t count_ = 0;
};

}  // namespace vendrel
