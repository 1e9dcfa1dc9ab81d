#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <vector>

#include "plan/plan_lines.h"

namespace vendrel {

/// A straight piece of a chain.
struct LinePiece {
    PlanPoint From;
    PlanPoint To;
    int Chain = 0;
    int Place = 0;        // in the chain, from 0
    int Left = kOutside;  // the chain's
    int Right = kOutside;
};

/// From a place to the nearest of a piece, squared.
[[nodiscard]] double SquareDistance(const PlanPoint& at, const LinePiece& piece);

/// The straight pieces of all chains by where they lie: squares of the picture know the pieces that
/// touch them.
class LineIndex {
  public:
    explicit LineIndex(const PlanLines& lines);

    [[nodiscard]] const LinePiece& operator[](int piece) const {
        return pieces_[static_cast<std::size_t>(piece)];
    }
    [[nodiscard]] int Squares() const { return across_ * down_; }
    /// Numbers of the pieces that touch a square, ascending.
    [[nodiscard]] std::span<const int> In(int square) const {
        const auto at = static_cast<std::size_t>(square);
        return std::span(touching_).subspan(starts_[at], starts_[at + 1] - starts_[at]);
    }
    /// Hands over the pieces that touch a part of the picture, some of them several times, and some
    /// beside it.
    template <class Take>
    void Near(const PlanRect& part, Take take) const {
        for (int y = SquareAt(part.Top, down_); y <= SquareAt(part.Bottom, down_); ++y) {
            for (int x = SquareAt(part.Left, across_); x <= SquareAt(part.Right, across_); ++x) {
                for (const int piece : In(y * across_ + x)) {
                    take((*this)[piece]);
                }
            }
        }
    }
    /// From a place to the nearest piece; `most` where that is farther.
    [[nodiscard]] double RoomAt(const PlanPoint& at, double most) const;
    /// The area that a place lies in, kOutside beyond the picture.
    [[nodiscard]] int AreaAt(const PlanPoint& at) const;

  private:
    static constexpr double kSide = 6;  // pixels: a few pieces each

    [[nodiscard]] static int SquareAt(double at, int count) {
        return std::clamp(static_cast<int>(std::floor(at / kSide)), 0, count - 1);
    }
    void AddPieces(const PlanChain& chain, int number);
    template <class Take>
    void EachSquare(const LinePiece& piece, Take take) const;

    int across_ = 1;
    int down_ = 1;
    std::vector<LinePiece> pieces_;
    std::vector<std::size_t> starts_;
    std::vector<int> touching_;
};

/// A place from which lines keep away, near another one.
struct RoomyPlace {
    PlanPoint At;
    double Room = 0;
};

/// Climbs from a place to where lines are `wanted` away, or as near to that as small steps lead,
/// none of them across a line or `farthest` from where it began.
[[nodiscard]] RoomyPlace FindRoom(const LineIndex& index, const PlanPoint& from, double wanted,
                                  double farthest);

}  // namespace vendrel
