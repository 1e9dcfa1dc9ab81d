#include "plan/label_fit.h"

#include <array>
#include <limits>

namespace vendrel {
namespace {

constexpr double kFarthestStep = 1;  // pixels
constexpr double kShortestStep = 0.12;
constexpr int kMostSteps = 12;  // in any direction

// How tall a symbol in a place may be for all lines to stay `air` away from its box. Less than 0
// where lines come nearer than that to its middle.
class Height {
  public:
    Height(std::span<const LinePiece> pieces, double aspect, double air)
        : pieces_(pieces), aspect_(aspect), air_(air) {}

    [[nodiscard]] double At(const PlanPoint& centre) const {
        double least = std::numeric_limits<double>::infinity();
        for (const LinePiece& piece : pieces_) {
            const double bound = AskedByBounds(piece, centre);
            if (bound < least) {
                least = IsStraight(piece) ? bound : std::min(least, Beside(piece, centre));
            }
        }
        return least;
    }

  private:
    [[nodiscard]] static bool IsStraight(const LinePiece& piece) {
        return piece.From.X == piece.To.X || piece.From.Y == piece.To.Y;
    }
    // No more than what the piece asks, and exactly that when it is level or upright.
    [[nodiscard]] double AskedByBounds(const LinePiece& piece, const PlanPoint& centre) const {
        const auto off = [](double from, double to, double at) {
            return std::max({std::min(from, to) - at, at - std::max(from, to), 0.0});
        };
        return Asked(off(piece.From.X, piece.To.X, centre.X),
                     off(piece.From.Y, piece.To.Y, centre.Y));
    }
    // Of the height by a point so far from the middle.
    [[nodiscard]] double Asked(double x, double y) const {
        return 2 * std::max((std::abs(x) - air_) / aspect_, std::abs(y) - air_);
    }
    // What a piece aslant asks has its least at an end, or where it passes the middle, or a corner
    // of the box that grows.
    [[nodiscard]] double Beside(const LinePiece& piece, const PlanPoint& centre) const {
        const double x = piece.From.X - centre.X;
        const double y = piece.From.Y - centre.Y;
        const double wayX = piece.To.X - piece.From.X;
        const double wayY = piece.To.Y - piece.From.Y;
        const double slack = air_ * (1 - aspect_);
        double least = std::min(Asked(x, y), Asked(x + wayX, y + wayY));
        const auto look = [&](double rest, double way) {
            const double share = way != 0 ? -rest / way : -1;
            if (share > 0 && share < 1) {
                least = std::min(least, Asked(x + share * wayX, y + share * wayY));
            }
        };
        look(x, wayX);
        look(y, wayY);
        for (const double sx : {-1.0, 1.0}) {
            for (const double sy : {-1.0, 1.0}) {
                look(sx * x - sy * aspect_ * y - slack, sx * wayX - sy * aspect_ * wayY);
            }
        }
        return least;
    }

    std::span<const LinePiece> pieces_;
    double aspect_;
    double air_;
};

}  // namespace

FittedSymbol LabelFit::At(const PlanPoint& centre, double aspect, int area) const {
    if (!IsIn(area, centre)) {
        return {centre, 0};
    }
    const std::vector<LinePiece> pieces = PiecesAround(centre, aspect, 0);
    const auto height = [&](double air) { return Height(pieces, aspect, air).At(centre); };
    return {centre, air_.HeightIn(height(air_.Wanted), height(air_.Least), height(0))};
}

FittedSymbol LabelFit::Near(const PlanPoint& wanted, double aspect, int area) const {
    const PlanPoint centre = PlaceIn(area, wanted);
    if (!IsIn(area, centre)) {
        return {centre, 0};
    }
    const std::vector<LinePiece> pieces = PiecesAround(centre, aspect, kMostSteps * kFarthestStep);
    const Height height(pieces, aspect, air_.Wanted);
    PlanPoint at = centre;
    double tallest = height.At(at);
    int steps = 0;
    for (double step = kFarthestStep; step > kShortestStep && tallest < air_.Largest;) {
        const PlanPoint from = at;
        for (const PlanPoint& to :
             {PlanPoint{from.X + step, from.Y}, PlanPoint{from.X - step, from.Y},
              PlanPoint{from.X, from.Y + step}, PlanPoint{from.X, from.Y - step}}) {
            const double taller = height.At(to);
            if (taller > tallest && IsIn(area, to)) {
                tallest = taller;
                at = to;
            }
        }
        step = at == from || ++steps >= kMostSteps ? step / 2 : step;
    }
    return {at, air_.HeightIn(tallest, Height(pieces, aspect, air_.Least).At(at),
                              Height(pieces, aspect, 0).At(at))};
}

std::vector<LinePiece> LabelFit::PiecesAround(const PlanPoint& centre, double aspect,
                                              double aside) const {
    const double down = air_.Largest / 2 + air_.Wanted + aside;
    const double across = air_.Largest * aspect / 2 + air_.Wanted + aside;
    std::vector<LinePiece> pieces;
    index_.Near({centre.X - across, centre.Y - down, centre.X + across, centre.Y + down},
                [&](const LinePiece& piece) { pieces.push_back(piece); });
    return pieces;
}

// The middle of a box of pixels may have come to lie beyond a smooth line.
PlanPoint LabelFit::PlaceIn(int area, const PlanPoint& wanted) const {
    constexpr int kFarthest = 12;  // pixels
    constexpr std::array<PlanPoint, 8> kWays = {
        {{1, 0}, {0, 1}, {-1, 0}, {0, -1}, {1, 1}, {-1, 1}, {-1, -1}, {1, -1}}};
    for (int far = 0; far <= kFarthest; ++far) {
        for (const PlanPoint& way : kWays) {
            const PlanPoint at{wanted.X + far * way.X, wanted.Y + far * way.Y};
            if (IsIn(area, at)) {
                return at;
            }
        }
    }
    return wanted;
}

bool LabelFit::IsIn(int area, const PlanPoint& at) const {
    const int x = static_cast<int>(at.X);
    const int y = static_cast<int>(at.Y);
    return ids_.Holds(x, y) && ids_(x, y) == area && index_.AreaAt(at) == area;
}

}  // namespace vendrel
