#include "plan/line_meetings.h"

#include <cstdint>

#include "support/list.h"

namespace vendrel {
namespace {

// In 64ths of a pixel.
struct GrainPoint {
    std::int64_t X = 0;
    std::int64_t Y = 0;
    bool operator==(const GrainPoint&) const = default;
};
GrainPoint Grains(const PlanPoint& point) {
    return {std::llround(point.X * 64), std::llround(point.Y * 64)};
}

struct GrainPiece {
    GrainPoint From;
    GrainPoint To;
};

// Which way one turns at `b` on the way from `a` to `c`: 1 right, -1 left, 0 not at all.
int TurnOf(const GrainPoint& a, const GrainPoint& b, const GrainPoint& c) {
    const std::int64_t turn = (b.X - a.X) * (c.Y - a.Y) - (b.Y - a.Y) * (c.X - a.X);
    return turn > 0 ? 1 : turn < 0 ? -1 : 0;
}

// Of a point in line with a piece.
bool IsOn(const GrainPoint& at, const GrainPiece& piece) {
    const auto [left, right] = std::minmax(piece.From.X, piece.To.X);
    const auto [top, bottom] = std::minmax(piece.From.Y, piece.To.Y);
    return at.X >= left && at.X <= right && at.Y >= top && at.Y <= bottom;
}

bool Meet(const GrainPiece& one, const GrainPiece& other) {
    const int from = TurnOf(one.From, one.To, other.From);
    const int to = TurnOf(one.From, one.To, other.To);
    const int oneFrom = TurnOf(other.From, other.To, one.From);
    const int oneTo = TurnOf(other.From, other.To, one.To);
    return (from * to < 0 && oneFrom * oneTo < 0) || (from == 0 && IsOn(other.From, one)) ||
           (to == 0 && IsOn(other.To, one)) || (oneFrom == 0 && IsOn(one.From, other)) ||
           (oneTo == 0 && IsOn(one.To, other));
}

// Whether pieces that have `at` as an end have more in common.
bool OverlapFrom(const GrainPoint& at, const GrainPoint& one, const GrainPoint& other) {
    return TurnOf(at, one, other) == 0 &&
           (one.X - at.X) * (other.X - at.X) + (one.Y - at.Y) * (other.Y - at.Y) > 0;
}

class MeetingSearch {
  public:
    MeetingSearch(const PlanLines& lines, const LineIndex& index) : lines_(lines), index_(index) {}

    [[nodiscard]] std::vector<std::pair<int, int>> Run() const {
        std::vector<std::pair<int, int>> meetings;
        for (int square = 0; square < index_.Squares(); ++square) {
            const std::span<const int> in = index_.In(square);
            for (std::size_t i = 0; i < in.size(); ++i) {
                for (std::size_t j = i + 1; j < in.size(); ++j) {
                    const LinePiece& one = index_[in[i]];
                    const LinePiece& other = index_[in[j]];
                    if (AreClose(one, other) && MeetWrongly(one, other)) {
                        meetings.emplace_back(one.Chain, other.Chain);
                    }
                }
            }
        }
        return meetings;
    }

  private:
    // A quick look before the exact one.
    static bool AreClose(const LinePiece& one, const LinePiece& other) {
        return std::max(one.From.X, one.To.X) >= std::min(other.From.X, other.To.X) &&
               std::max(other.From.X, other.To.X) >= std::min(one.From.X, one.To.X) &&
               std::max(one.From.Y, one.To.Y) >= std::min(other.From.Y, other.To.Y) &&
               std::max(other.From.Y, other.To.Y) >= std::min(one.From.Y, one.To.Y);
    }
    [[nodiscard]] bool MeetWrongly(const LinePiece& one, const LinePiece& other) const {
        const GrainPiece a{Grains(one.From), Grains(one.To)};
        const GrainPiece b{Grains(other.From), Grains(other.To)};
        if (!Meet(a, b)) {
            return false;
        }
        if (one.Chain == other.Chain && one.Place + 1 == other.Place) {
            return OverlapFrom(a.To, a.From, b.To);
        }
        const bool fromEnd = one.Place == 0;
        const bool toEnd = IsLast(one);
        const bool otherFromEnd = other.Place == 0;
        const bool otherToEnd = IsLast(other);
        if (fromEnd && otherFromEnd && a.From == b.From) {
            return OverlapFrom(a.From, a.To, b.To);
        }
        if (fromEnd && otherToEnd && a.From == b.To) {
            return OverlapFrom(a.From, a.To, b.From);
        }
        if (toEnd && otherFromEnd && a.To == b.From) {
            return OverlapFrom(a.To, a.From, b.To);
        }
        if (toEnd && otherToEnd && a.To == b.To) {
            return OverlapFrom(a.To, a.From, b.From);
        }
        return true;
    }
    [[nodiscard]] bool IsLast(const LinePiece& piece) const {
        return piece.Place + 2 == std::ssize(At(lines_.Chains, piece.Chain).Points);
    }

    const PlanLines& lines_;
    const LineIndex& index_;
};

}  // namespace

std::vector<std::pair<int, int>> FindMeetings(const PlanLines& lines, const LineIndex& index) {
    return MeetingSearch(lines, index).Run();
}

}  // namespace vendrel
