#include "plan/outlines.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace vendrel {
namespace {

using Piece = std::pair<PlanPoint, PlanPoint>;

// Cuts the shares `from`..`to` of a piece down to those between two bounds.
bool CutShares(double start, double way, double least, double most,
               std::pair<double, double>& shares) {
    if (way == 0) {
        return start >= least && start <= most;
    }
    const auto [enters, leaves] = std::minmax({(least - start) / way, (most - start) / way});
    shares = {std::max(shares.first, enters), std::min(shares.second, leaves)};
    return shares.first < shares.second;
}

// The part of a straight piece inside `part`.
std::optional<Piece> ClipPiece(const PlanPoint& from, const PlanPoint& to, const PlanRect& part) {
    // A part may be given in another unit: its edge must not lose the picture's for a rounding.
    constexpr double kRounding = 1e-6;
    const double wayX = to.X - from.X;
    const double wayY = to.Y - from.Y;
    std::pair<double, double> shares{0, 1};
    if (!CutShares(from.X, wayX, part.Left - kRounding, part.Right + kRounding, shares) ||
        !CutShares(from.Y, wayY, part.Top - kRounding, part.Bottom + kRounding, shares)) {
        return std::nullopt;
    }
    const auto at = [&](double share) -> PlanPoint {
        return {std::clamp(from.X + share * wayX, part.Left, part.Right),
                std::clamp(from.Y + share * wayY, part.Top, part.Bottom)};
    };
    const Piece clipped{shares.first == 0 ? at(0) : at(shares.first),
                        shares.second == 1 ? at(1) : at(shares.second)};
    if (clipped.first == clipped.second) {
        return std::nullopt;
    }
    return clipped;
}

}  // namespace

std::vector<PlanLine> ClipLine(const PlanLine& line, const PlanRect& part) {
    std::vector<PlanLine> clipped;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const auto piece = ClipPiece(line[i - 1], line[i], part);
        if (!piece) {
            continue;
        }
        if (clipped.empty() || clipped.back().back() != piece->first) {
            clipped.push_back({piece->first});
        }
        clipped.back().push_back(piece->second);
    }
    return clipped;
}

}  // namespace vendrel
