#include "plan/label_fit.h"

#include <algorithm>
#include <array>
#include <limits>

namespace vendrel {
namespace {

constexpr double kFarthestStep = 1;  // pixels
constexpr double kShortestStep = 0.12;
constexpr int kMostSteps = 12;  // in any direction

// The pieces of lines near a place, by how much of a symbol's height there they ask at most.
struct NearPieces {
    PlanPoint Around;
    std::vector<std::pair<double, const LinePiece*>> Sorted;
};

// How tall a symbol in a place may be for all lines to stay `air` away from its box. Less than 0
// where lines come nearer than that to its middle.
class Height {
  public:
    Height(double aspect, double air) : aspect_(aspect), air_(air) {}

    [[nodiscard]] double At(const PlanPoint& centre, const NearPieces& pieces) const {
        constexpr double kRounding = 1e-9;
        // No piece asks more of a place so far from where they were sorted, and less air no less.
        const double gain = kRounding + 2 * std::max(std::abs(centre.X - pieces.Around.X) / aspect_,
                                                     std::abs(centre.Y - pieces.Around.Y));
        double least = std::numeric_limits<double>::infinity();
        for (const auto& [asked, piece] : pieces.Sorted) {
            if (asked - gain >= least) {
                break;
            }
            const double bound = AskedByBounds(*piece, centre);
            if (bound < least) {
                least = IsStraight(*piece) ? bound : std::min(least, Beside(*piece, centre));
            }
        }
        return least;
    }
    // No more than what the piece asks, and exactly that when it is level or upright.
    [[nodiscard]] double AskedByBounds(const LinePiece& piece, const PlanPoint& centre) const {
        const auto off = [](double from, double to, double at) {
            return std::max({std::min(from, to) - at, at - std::max(from, to), 0.0});
        };
        return Asked(off(piece.From.X, piece.To.X, centre.X),
                     off(piece.From.Y, piece.To.Y, centre.Y));
    }

  private:
    [[nodiscard]] static bool IsStraight(const LinePiece& piece) {
        return piece.From.X == piece.To.X || piece.From.Y == piece.To.Y;
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

    double aspect_;
    double air_;
};

// All that may touch a symbol with its middle there, or so far `aside`.
NearPieces PiecesAround(const LineIndex& index, const SymbolAir& air, const PlanPoint& centre,
                        double aspect, double aside) {
    const double down = air.Largest / 2 + air.Wanted + aside;
    const double across = air.Largest * aspect / 2 + air.Wanted + aside;
    const Height height(aspect, air.Wanted);
    NearPieces near{centre, {}};
    index.Near({centre.X - across, centre.Y - down, centre.X + across, centre.Y + down},
               [&](const LinePiece& piece) {
                   near.Sorted.emplace_back(height.AskedByBounds(piece, centre), &piece);
               });
    std::ranges::sort(near.Sorted);
    return near;
}

double HeightAt(const PlanPoint& centre, const NearPieces& pieces, double aspect,
                const SymbolAir& air) {
    const auto height = [&](double by) { return Height(aspect, by).At(centre, pieces); };
    return air.HeightIn(height(air.Wanted), height(air.Least), height(0));
}

}  // namespace

FittedSymbol LabelFit::At(const PlanPoint& centre, double aspect, int area) const {
    if (!IsIn(area, centre)) {
        return {centre, 0};
    }
    return {centre, HeightAt(centre, PiecesAround(index_, air_, centre, aspect, 0), aspect, air_)};
}

FittedSymbol LabelFit::Near(const PlanPoint& wanted, double aspect, int area) const {
    const PlanPoint centre = PlaceIn(area, wanted);
    if (!IsIn(area, centre)) {
        return {centre, 0};
    }
    const NearPieces pieces =
        PiecesAround(index_, air_, centre, aspect, kMostSteps * kFarthestStep);
    const Height height(aspect, air_.Wanted);
    PlanPoint at = centre;
    double tallest = height.At(at, pieces);
    int steps = 0;
    for (double step = kFarthestStep; step > kShortestStep && tallest < air_.Largest;) {
        const PlanPoint from = at;
        for (const PlanPoint& to :
             {PlanPoint{from.X + step, from.Y}, PlanPoint{from.X - step, from.Y},
              PlanPoint{from.X, from.Y + step}, PlanPoint{from.X, from.Y - step}}) {
            const double taller = height.At(to, pieces);
            if (taller > tallest && IsIn(area, to)) {
                tallest = taller;
                at = to;
            }
        }
        step = at == from || ++steps >= kMostSteps ? step / 2 : step;
    }
    return {at, HeightAt(at, pieces, aspect, air_)};
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
