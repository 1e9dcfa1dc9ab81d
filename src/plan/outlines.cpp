#include "plan/outlines.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <optional>
#include <utility>

#include "support/list.h"

namespace vendrel {
namespace {

// The four ways a border can leave a pixel corner.
constexpr std::array<CellPos, 4> kWays = {{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};
constexpr int kRight = 0;
constexpr int kDown = 1;
constexpr int kNoWay = -1;

constexpr int Opposite(int way) {
    return way ^ 2;
}
constexpr std::uint8_t BitOf(int way) {
    return static_cast<std::uint8_t>(1U << static_cast<unsigned>(way));
}

// Keeps, for every pixel corner, the borders leaving it that are not drawn yet.
class BorderWalk {
  public:
    explicit BorderWalk(const PixelGrid& ids) : ids_(ids), ways_(ids.Across() + 1, ids.Down() + 1) {
        for (int y = 0; y <= ways_.Down(); ++y) {
            for (int x = 0; x <= ways_.Across(); ++x) {
                FindBorders(x, y);
            }
        }
    }

    std::vector<PlanLine> Run() {
        // First from every corner where borders end or meet in threes, then what is left: rings.
        // The first corner of a ring met in reading order is one where it turns.
        for (const bool onlyOdd : {true, false}) {
            for (int y = 0; y <= ways_.Down(); ++y) {
                for (int x = 0; x <= ways_.Across(); ++x) {
                    StartFrom({x, y}, onlyOdd);
                }
            }
        }
        return std::move(lines_);
    }

  private:
    [[nodiscard]] int IdAt(int x, int y) const { return ids_.Holds(x, y) ? ids_(x, y) : -1; }

    void FindBorders(int x, int y) {
        if (IdAt(x, y) != IdAt(x, y - 1)) {
            Add({x, y}, kRight);
        }
        if (IdAt(x, y) != IdAt(x - 1, y)) {
            Add({x, y}, kDown);
        }
    }
    void Add(CellPos at, int way) {
        const CellPos step = At(kWays, way);
        ways_(at.X, at.Y) |= BitOf(way);
        ways_(at.X + step.X, at.Y + step.Y) |= BitOf(Opposite(way));
    }

    void StartFrom(CellPos corner, bool onlyOdd) {
        std::uint8_t& ways = ways_(corner.X, corner.Y);
        while (ways != 0 && (!onlyOdd || std::popcount(ways) % 2 == 1)) {
            Walk(corner, std::countr_zero(ways));
        }
    }

    // Goes on straight where it can: fewer points, and long edges stay in one piece.
    void Walk(CellPos at, int way) {
        PlanLine line{PointAt(at)};
        while (way != kNoWay) {
            at = Take(at, way);
            const int next = NextWay(at, way);
            if (next != way) {
                line.push_back(PointAt(at));
            }
            way = next;
        }
        lines_.push_back(std::move(line));
    }
    CellPos Take(CellPos at, int way) {
        const CellPos step = At(kWays, way);
        const CellPos next{at.X + step.X, at.Y + step.Y};
        ways_(at.X, at.Y) &= static_cast<std::uint8_t>(~BitOf(way));
        ways_(next.X, next.Y) &= static_cast<std::uint8_t>(~BitOf(Opposite(way)));
        return next;
    }
    [[nodiscard]] int NextWay(CellPos at, int way) const {
        const std::uint8_t ways = ways_(at.X, at.Y);
        if ((ways & BitOf(way)) != 0) {
            return way;
        }
        return ways == 0 ? kNoWay : std::countr_zero(ways);
    }
    static PlanPoint PointAt(CellPos at) {
        return {static_cast<double>(at.X), static_cast<double>(at.Y)};
    }

    const PixelGrid& ids_;
    Grid<std::uint8_t> ways_;
    std::vector<PlanLine> lines_;
};

using Step = std::pair<PlanPoint, PlanPoint>;

// The part of a level or upright step inside `part`.
std::optional<Step> ClipStep(PlanPoint from, PlanPoint to, const PlanRect& part) {
    const auto [left, right] = std::minmax(from.X, to.X);
    const auto [top, bottom] = std::minmax(from.Y, to.Y);
    // A part may be given in another unit: its edge must not lose the picture's for a rounding.
    constexpr double kRounding = 1e-6;
    if (right < part.Left - kRounding || left > part.Right + kRounding ||
        bottom < part.Top - kRounding || top > part.Bottom + kRounding) {
        return std::nullopt;
    }
    const auto inside = [&part](PlanPoint p) -> PlanPoint {
        return {std::clamp(p.X, part.Left, part.Right), std::clamp(p.Y, part.Top, part.Bottom)};
    };
    const Step clipped{inside(from), inside(to)};
    if (clipped.first == clipped.second) {
        return std::nullopt;
    }
    return clipped;
}

void ClipLine(const PlanLine& line, const PlanRect& part, std::vector<PlanLine>& clipped) {
    PlanLine piece;
    const auto finish = [&] {
        if (!piece.empty()) {
            clipped.push_back(std::move(piece));
            piece.clear();
        }
    };
    for (std::size_t i = 1; i < line.size(); ++i) {
        const auto step = ClipStep(line[i - 1], line[i], part);
        if (!step) {
            finish();
            continue;
        }
        if (piece.empty() || piece.back() != step->first) {
            finish();
            piece.push_back(step->first);
        }
        piece.push_back(step->second);
    }
    finish();
}

}  // namespace

std::vector<PlanLine> TraceOutlines(const PixelGrid& ids) {
    return BorderWalk(ids).Run();
}

std::vector<PlanLine> ClipLines(const std::vector<PlanLine>& lines, const PlanRect& part) {
    std::vector<PlanLine> clipped;
    for (const PlanLine& line : lines) {
        ClipLine(line, part, clipped);
    }
    return clipped;
}

}  // namespace vendrel
