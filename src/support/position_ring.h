#pragma once

#include <cassert>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "support/cell_pos.h"

namespace vendrel {

/// First-in-first-out list of grid positions of 0..65535 across and 0..32767 down, each with a
/// flag of the caller's. It appends without branching: whether a neighbour is wanted is as good as
/// a coin's toss, and a wrong guess of the processor costs more than all the rest of a step.
class PositionRing {
  public:
    /// A position and its flag in one register.
    class Entry {
      public:
        Entry(int x, int y, bool flag)
            : bits_(static_cast<std::uint32_t>(flag) << 31 | static_cast<std::uint32_t>(y) << 16 |
                    static_cast<std::uint32_t>(x)) {}
        Entry() = default;
        [[nodiscard]] int X() const { return static_cast<int>(bits_ & 0xFFFF); }
        [[nodiscard]] int Y() const { return static_cast<int>(bits_ >> 16 & 0x7FFF); }
        [[nodiscard]] bool Flag() const { return bits_ >> 31 != 0; }
        [[nodiscard]] CellPos At() const { return {X(), Y()}; }

      private:
        std::uint32_t bits_ = 0;
    };

    [[nodiscard]] bool Empty() const { return first_ == end_; }
    [[nodiscard]] std::size_t Size() const { return end_ - first_; }
    /// The front; the list must not be empty.
    [[nodiscard]] Entry Front() const { return ring_[first_ & mask_]; }
    /// Takes the front; the list must not be empty.
    Entry Pop() { return ring_[first_++ & mask_]; }

    /// The open end of the list, held in registers while a few positions are appended.
    class Tail {
      public:
        /// Makes room for `most` positions, wanted or not.
        Tail(PositionRing& list, std::size_t most) : list_(list) {
            if (list.Size() + most > list.ring_.size()) {
                list.Grow();
            }
            ring_ = list.ring_.data();
            mask_ = list.mask_;
            end_ = list.end_;
        }
        ~Tail() { list_.end_ = end_; }
        Tail(const Tail&) = delete;
        Tail& operator=(const Tail&) = delete;

        /// Appends a position, if `wanted`.
        void PushIf(bool wanted, int x, int y, bool flag = false) {
            assert(x >= 0 && x <= 0xFFFF && y >= 0 && y <= 0x7FFF);
            ring_[end_ & mask_] = {x, y, flag};
            end_ += wanted ? 1 : 0;
        }

      private:
        PositionRing& list_;
        Entry* ring_;
        std::size_t mask_;
        std::size_t end_;
    };

  private:
    void Grow();

    std::vector<Entry> ring_;  // size is a power of two
    std::size_t mask_ = 0;
    std::size_t first_ = 0;  // counts on; only the lower bits are a place in the ring
    std::size_t end_ = 0;
};

}  // namespace vendrel
