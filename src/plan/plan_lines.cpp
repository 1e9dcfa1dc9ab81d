#include "plan/plan_lines.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <utility>

#include "support/cell_pos.h"
#include "support/list.h"

namespace vendrel {
namespace {

// The four ways a border can leave a pixel corner, clockwise.
constexpr std::array<CellPos, 4> kWays = {{{1, 0}, {0, 1}, {-1, 0}, {0, -1}}};
constexpr int kRight = 0;
constexpr int kDown = 1;

constexpr int Opposite(int way) {
    return way ^ 2;
}
constexpr int Clockwise(int way, int turns) {
    return (way + turns) & 3;
}
constexpr std::uint8_t BitOf(int way) {
    return static_cast<std::uint8_t>(1U << static_cast<unsigned>(way));
}

// A way that leaves a corner, as a number.
struct Leaving {
    std::int64_t Key = 0;
    ChainWay Chain;
};

// For every pixel corner the borders that leave it, and those of them that no chain has yet.
class ChainWalk {
  public:
    explicit ChainWalk(const PixelGrid& ids) : ids_(ids), ways_(ids.Across() + 1, ids.Down() + 1) {
        for (int y = 0; y <= ways_.Down(); ++y) {
            for (int x = 0; x <= ways_.Across(); ++x) {
                FindBorders(x, y);
            }
        }
        left_ = ways_;
    }

    PlanLines Run(int areas) {
        // First from every junction, then what is left: chains that close. The first corner of one
        // of these met in reading order is one where it turns.
        for (const bool junctions : {true, false}) {
            for (int y = 0; y <= ways_.Down(); ++y) {
                for (int x = 0; x <= ways_.Across(); ++x) {
                    StartFrom({x, y}, junctions);
                }
            }
        }
        std::ranges::sort(leaving_, {}, &Leaving::Key);
        lines_.Rings.resize(static_cast<std::size_t>(areas));
        used_.resize(lines_.Chains.size());
        for (int chain = 0; chain < std::ssize(lines_.Chains); ++chain) {
            CloseRing({chain, false});
            CloseRing({chain, true});
        }
        return std::move(lines_);
    }

  private:
    [[nodiscard]] int IdAt(int x, int y) const { return ids_.Holds(x, y) ? ids_(x, y) : kOutside; }

    void FindBorders(int x, int y) {
        if (IdAt(x, y) != IdAt(x, y - 1)) {
            Add({x, y}, kRight);
        }
        if (IdAt(x, y) != IdAt(x - 1, y)) {
            Add({x, y}, kDown);
        }
    }
    void Add(CellPos at, int way) {
        const CellPos to = Beyond(at, way);
        ways_(at.X, at.Y) |= BitOf(way);
        ways_(to.X, to.Y) |= BitOf(Opposite(way));
    }
    static CellPos Beyond(CellPos at, int way) {
        const CellPos step = At(kWays, way);
        return {at.X + step.X, at.Y + step.Y};
    }
    [[nodiscard]] bool IsJunction(CellPos at) const { return std::popcount(ways_(at.X, at.Y)) > 2; }
    // The area right of somebody who leaves a corner that way.
    [[nodiscard]] int RightOf(CellPos at, int way) const {
        return IdAt(at.X - (way == kDown || way == Opposite(kRight) ? 1 : 0),
                    at.Y - (way == Opposite(kRight) || way == Opposite(kDown) ? 1 : 0));
    }

    void StartFrom(CellPos corner, bool junctions) {
        if (junctions && !IsJunction(corner)) {
            return;
        }
        std::uint8_t& ways = left_(corner.X, corner.Y);
        while (ways != 0) {
            Walk(corner, std::countr_zero(ways));
        }
    }

    void Walk(CellPos at, int way) {
        const int chain = static_cast<int>(lines_.Chains.size());
        const CellPos start = at;
        Note(start, way, {chain, false});
        PlanChain made{RightOf(Beyond(at, way), Opposite(way)),
                       RightOf(at, way),
                       {PointAt(at)},
                       !IsJunction(at)};
        for (bool going = true; going;) {
            at = Take(at, way);
            going = !IsJunction(at) && at != start;
            const int next = going ? std::countr_zero(left_(at.X, at.Y)) : way;
            if (!going || next != way) {
                made.Points.push_back(PointAt(at));
            }
            if (!going) {
                Note(at, Opposite(way), {chain, true});
            }
            way = next;
        }
        lines_.Chains.push_back(std::move(made));
    }
    CellPos Take(CellPos at, int way) {
        const CellPos next = Beyond(at, way);
        left_(at.X, at.Y) &= static_cast<std::uint8_t>(~BitOf(way));
        left_(next.X, next.Y) &= static_cast<std::uint8_t>(~BitOf(Opposite(way)));
        return next;
    }
    static PlanPoint PointAt(CellPos at) {
        return {static_cast<double>(at.X), static_cast<double>(at.Y)};
    }

    [[nodiscard]] std::int64_t KeyOf(CellPos at, int way) const {
        return ((std::int64_t{at.Y} * (ways_.Across() + 1)) + at.X) * 4 + way;
    }
    void Note(CellPos at, int way, ChainWay chain) { leaving_.push_back({KeyOf(at, way), chain}); }

    [[nodiscard]] int AreaRightOf(ChainWay way) const {
        const PlanChain& chain = At(lines_.Chains, way.Chain);
        return way.Reversed ? chain.Left : chain.Right;
    }
    [[nodiscard]] bool& IsUsed(ChainWay way) {
        return At(At(used_, way.Chain).Ways, way.Reversed ? 1 : 0);
    }
    void CloseRing(ChainWay way) {
        const int area = AreaRightOf(way);
        if (area == kOutside || IsUsed(way)) {
            return;
        }
        PlanRing ring;
        while (!IsUsed(way)) {
            IsUsed(way) = true;
            ring.push_back(way);
            way = NextOf(way);
        }
        At(lines_.Rings, area).push_back(std::move(ring));
    }
    [[nodiscard]] static CellPos CornerAt(const PlanPoint& point) {
        return {static_cast<int>(point.X), static_cast<int>(point.Y)};
    }

    // Turns right where it can: what touches by a corner alone does not hang together.
    [[nodiscard]] ChainWay NextOf(ChainWay way) const {
        const PlanLine& points = At(lines_.Chains, way.Chain).Points;
        const std::size_t count = points.size();
        const PlanPoint& end = way.Reversed ? points[0] : points[count - 1];
        const PlanPoint& before = way.Reversed ? points[1] : points[count - 2];
        const int came = end.X > before.X   ? kRight
                         : end.X < before.X ? Opposite(kRight)
                         : end.Y > before.Y ? kDown
                                            : Opposite(kDown);
        const CellPos corner = CornerAt(end);
        for (const int turn : {1, 0, 3}) {
            const auto found = std::ranges::lower_bound(
                leaving_, KeyOf(corner, Clockwise(came, turn)), {}, &Leaving::Key);
            if (found != leaving_.end() && found->Key == KeyOf(corner, Clockwise(came, turn))) {
                return found->Chain;
            }
        }
        return way;
    }

    struct Used {
        std::array<bool, 2> Ways{};  // as it stands, reversed
    };

    const PixelGrid& ids_;
    Grid<std::uint8_t> ways_;
    Grid<std::uint8_t> left_;  // of them, not yet walked
    std::vector<Leaving> leaving_;
    std::vector<Used> used_;  // by chain
    PlanLines lines_;
};

// Twice the area to the right of a line, as far as the line alone says.
double Swept(const PlanLine& line) {
    double sum = 0;
    for (std::size_t i = 1; i < line.size(); ++i) {
        sum += line[i - 1].X * line[i].Y - line[i].X * line[i - 1].Y;
    }
    return sum;
}

}  // namespace

PlanLines TraceLines(const PixelGrid& ids) {
    return ChainWalk(ids).Run(1 + *std::ranges::max_element(ids.All()));
}

PlanLine PointsOf(const PlanLines& lines, const PlanRing& ring) {
    PlanLine all;
    for (const ChainWay way : ring) {
        const PlanLine& points = At(lines.Chains, way.Chain).Points;
        if (way.Reversed) {
            all.insert(all.end(), points.rbegin(), points.rend() - 1);
        } else {
            all.insert(all.end(), points.begin(), points.end() - 1);
        }
    }
    return all;
}

double SizeOfArea(const PlanLines& lines, int area) {
    double twice = 0;
    for (const PlanRing& ring : At(lines.Rings, area)) {
        for (const ChainWay way : ring) {
            const double swept = Swept(At(lines.Chains, way.Chain).Points);
            twice += way.Reversed ? -swept : swept;
        }
    }
    return twice / 2;
}

}  // namespace vendrel
