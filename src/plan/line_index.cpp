#include "plan/line_index.h"

#include <limits>

namespace vendrel {

double SquareDistance(const PlanPoint& at, const LinePiece& piece) {
    const double wayX = piece.To.X - piece.From.X;
    const double wayY = piece.To.Y - piece.From.Y;
    const double x = at.X - piece.From.X;
    const double y = at.Y - piece.From.Y;
    const double share = std::clamp((x * wayX + y * wayY) / (wayX * wayX + wayY * wayY), 0.0, 1.0);
    const double offX = x - share * wayX;
    const double offY = y - share * wayY;
    return offX * offX + offY * offY;
}

template <class Take>
void LineIndex::EachSquare(const LinePiece& piece, Take take) const {
    const auto [left, right] = std::minmax(piece.From.X, piece.To.X);
    const auto [top, bottom] = std::minmax(piece.From.Y, piece.To.Y);
    for (int y = SquareAt(top, down_); y <= SquareAt(bottom, down_); ++y) {
        for (int x = SquareAt(left, across_); x <= SquareAt(right, across_); ++x) {
            take(static_cast<std::size_t>(y) * static_cast<std::size_t>(across_) +
                 static_cast<std::size_t>(x));
        }
    }
}

LineIndex::LineIndex(const PlanLines& lines) {
    for (std::size_t i = 0; i < lines.Chains.size(); ++i) {
        AddPieces(lines.Chains[i], static_cast<int>(i));
    }
    PlanPoint end;
    for (const LinePiece& piece : pieces_) {
        end = {std::max({end.X, piece.From.X, piece.To.X}),
               std::max({end.Y, piece.From.Y, piece.To.Y})};
    }
    across_ = static_cast<int>(end.X / kSide) + 1;
    down_ = static_cast<int>(end.Y / kSide) + 1;
    starts_.resize(static_cast<std::size_t>(Squares()) + 1);
    for (const LinePiece& piece : pieces_) {
        EachSquare(piece, [this](std::size_t square) { ++starts_[square + 1]; });
    }
    for (std::size_t square = 1; square < starts_.size(); ++square) {
        starts_[square] += starts_[square - 1];
    }
    touching_.resize(starts_.back());
    std::vector<std::size_t> next(starts_.begin(), starts_.end() - 1);
    for (std::size_t i = 0; i < pieces_.size(); ++i) {
        EachSquare(pieces_[i],
                   [&](std::size_t square) { touching_[next[square]++] = static_cast<int>(i); });
    }
}

void LineIndex::AddPieces(const PlanChain& chain, int number) {
    for (std::size_t i = 1; i < chain.Points.size(); ++i) {
        pieces_.push_back({chain.Points[i - 1], chain.Points[i], number, static_cast<int>(i) - 1,
                           chain.Left, chain.Right});
    }
}

double LineIndex::RoomAt(const PlanPoint& at, double most) const {
    double square = most * most;
    Near({at.X - most, at.Y - most, at.X + most, at.Y + most},
         [&](const LinePiece& piece) { square = std::min(square, SquareDistance(at, piece)); });
    return std::sqrt(square);
}

// By the first border that a level way to the right meets.
int LineIndex::AreaAt(const PlanPoint& at) const {
    double nearest = std::numeric_limits<double>::infinity();
    int area = kOutside;
    const int row = SquareAt(at.Y, down_);
    for (int x = SquareAt(at.X, across_); x < across_ && x * kSide <= nearest; ++x) {
        for (const int i : In(row * across_ + x)) {
            const LinePiece& piece = (*this)[i];
            if ((piece.From.Y > at.Y) == (piece.To.Y > at.Y)) {
                continue;
            }
            const double meets = piece.From.X + (at.Y - piece.From.Y) *
                                                    (piece.To.X - piece.From.X) /
                                                    (piece.To.Y - piece.From.Y);
            if (meets > at.X && meets < nearest) {
                nearest = meets;
                area = piece.To.Y > piece.From.Y ? piece.Right : piece.Left;
            }
        }
    }
    return area;
}

RoomyPlace FindRoom(const LineIndex& index, const PlanPoint& from, double wanted, double farthest) {
    constexpr double kLongest = 1;  // pixels
    constexpr double kShortest = 0.1;
    RoomyPlace place{from, index.RoomAt(from, wanted)};
    for (double step = kLongest; place.Room < wanted && step > kShortest;) {
        const PlanPoint at = place.At;
        RoomyPlace best = place;
        if (step < place.Room) {
            for (const PlanPoint& to :
                 {PlanPoint{at.X + step, at.Y}, PlanPoint{at.X - step, at.Y},
                  PlanPoint{at.X, at.Y + step}, PlanPoint{at.X, at.Y - step}}) {
                const double room = index.RoomAt(to, wanted);
                if (room > best.Room && std::hypot(to.X - from.X, to.Y - from.Y) <= farthest) {
                    best = {to, room};
                }
            }
        }
        step = best.Room > place.Room ? step : step / 2;
        place = best;
    }
    return place;
}

}  // namespace vendrel
