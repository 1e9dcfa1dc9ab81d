#include "plan/smooth_curve.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>

#include "support/list.h"

namespace vendrel {
namespace {

constexpr double kGrain = 64;       // parts of a pixel that points stand on
constexpr double kFine = 0.06;      // pixels: what no eye sees of a curve in print
constexpr double kCornerTurn = 60;  // degrees: less is part of a curve

PlanPoint operator+(const PlanPoint& a, const PlanPoint& b) {
    return {a.X + b.X, a.Y + b.Y};
}
PlanPoint operator-(const PlanPoint& a, const PlanPoint& b) {
    return {a.X - b.X, a.Y - b.Y};
}
PlanPoint operator*(const PlanPoint& a, double times) {
    return {a.X * times, a.Y * times};
}
double Length(const PlanPoint& a) {
    return std::hypot(a.X, a.Y);
}

// One point a pixel.
PlanLine InUnits(const PlanLine& stairs) {
    PlanLine units{stairs.front()};
    for (std::size_t i = 1; i < stairs.size(); ++i) {
        const PlanPoint way = stairs[i] - stairs[i - 1];
        const int count = static_cast<int>(std::lround(Length(way)));
        for (int step = 1; step <= count; ++step) {
            units.push_back(stairs[i - 1] + way * (static_cast<double>(step) / count));
        }
    }
    return units;
}

double DistanceToLine(const PlanPoint& point, const PlanPoint& from, const PlanPoint& to) {
    const PlanPoint way = to - from;
    const PlanPoint at = point - from;
    const double square = way.X * way.X + way.Y * way.Y;
    const double share =
        square > 0 ? std::clamp((at.X * way.X + at.Y * way.Y) / square, 0.0, 1.0) : 0;
    return Length(at - way * share);
}

// Looks for corners along a line of one point a pixel.
class CornerSearch {
  public:
    CornerSearch(const PlanLine& line, bool closed, double arm)
        : line_(line), closed_(closed), arm_(static_cast<int>(std::lround(arm))) {}

    // In order, none nearer to the next than half an arm.
    [[nodiscard]] std::vector<int> Run() const {
        std::vector<int> corners;
        const int count = Count();
        for (int i = closed_ ? 0 : arm_; i < (closed_ ? count : count - arm_); ++i) {
            const double turn = TurnAt(i);
            if (turn < kCornerTurn) {
                continue;
            }
            if (corners.empty() || i - corners.back() > arm_ / 2) {
                corners.push_back(i);
            } else if (turn > TurnAt(corners.back())) {
                corners.back() = i;
            }
        }
        return corners;
    }

  private:
    [[nodiscard]] int Count() const { return static_cast<int>(line_.size()) - (closed_ ? 1 : 0); }
    [[nodiscard]] const PlanPoint& Point(int i) const {
        const int count = Count();
        return At(line_, closed_ ? ((i % count) + count) % count : i);
    }
    // In degrees; 0 where the arms are not straight.
    [[nodiscard]] double TurnAt(int i) const {
        if (Count() < 2 * arm_ + 1 || !IsStraight(i - arm_, i) || !IsStraight(i, i + arm_)) {
            return 0;
        }
        const PlanPoint in = Point(i) - Point(i - arm_);
        const PlanPoint out = Point(i + arm_) - Point(i);
        const double turn = std::atan2(in.X * out.Y - in.Y * out.X, in.X * out.X + in.Y * out.Y);
        return std::abs(turn) * 180 / std::numbers::pi;
    }
    [[nodiscard]] bool IsStraight(int from, int to) const {
        constexpr double kStraight = 1.1;  // pixels: what the brush rounds off, and no stipple
        for (int i = from + 1; i < to; ++i) {
            if (DistanceToLine(Point(i), Point(from), Point(to)) > kStraight) {
                return false;
            }
        }
        return true;
    }

    const PlanLine& line_;
    bool closed_;
    int arm_;
};

// A line blurred with a bell, its ends held: beyond them it goes on as its mirror image, turned
// upside down. Closed lines go on from their beginning.
class Blur {
  public:
    Blur(double deviation, bool closed) : closed_(closed) {
        const int reach = std::max(1, static_cast<int>(std::ceil(2.5 * deviation)));
        for (int i = 0; i <= reach; ++i) {
            bell_.push_back(std::exp(-0.5 * i * i / (deviation * deviation)));
        }
        double sum = bell_[0];
        for (std::size_t i = 1; i < bell_.size(); ++i) {
            sum += 2 * bell_[i];
        }
        for (double& share : bell_) {
            share /= sum;
        }
    }

    [[nodiscard]] PlanLine Of(const PlanLine& line) const {
        const int reach = static_cast<int>(bell_.size()) - 1;
        const int count = static_cast<int>(line.size());
        PlanLine wide;
        wide.reserve(line.size() + 2 * bell_.size());
        for (int i = -reach; i < count + reach; ++i) {
            wide.push_back(Beyond(line, i));
        }
        PlanLine blurred(line.size());
        for (int i = 0; i < count; ++i) {
            const PlanPoint* const at = wide.data() + i + reach;
            PlanPoint sum = at[0] * bell_[0];
            for (int k = 1; k <= reach; ++k) {
                sum = sum + (at[-k] + at[k]) * At(bell_, k);
            }
            At(blurred, i) = sum;
        }
        return blurred;
    }

  private:
    [[nodiscard]] PlanPoint Beyond(const PlanLine& line, int i) const {
        const int last = static_cast<int>(line.size()) - 1;
        if (closed_) {
            return At(line, ((i % last) + last) % last);
        }
        const int period = 2 * last;
        const int periods = (i < 0 ? i - period + 1 : i) / period;
        const int at = i - periods * period;
        const PlanPoint point = at <= last ? At(line, at) : line.back() * 2 - At(line, period - at);
        return point + (line.back() - line.front()) * (2.0 * periods);
    }

    bool closed_;
    std::vector<double> bell_;
};

PlanPoint NoFartherThan(double reach, const PlanPoint& from, const PlanPoint& to) {
    const PlanPoint way = to - from;
    const double length = Length(way);
    return length <= reach ? to : from + way * (reach / length);
}

// Blurs without shrinking what is round: what a first blur takes is given back before the second.
PlanLine Curve(const PlanLine& stairs, bool closed, const CurveStrength& strength) {
    const Blur blur(strength.Blur, closed);
    const PlanLine once = blur.Of(stairs);
    PlanLine sharper(stairs.size());
    for (std::size_t i = 0; i < stairs.size(); ++i) {
        sharper[i] = NoFartherThan(strength.Reach, stairs[i], stairs[i] * 2 - once[i]);
    }
    PlanLine curve = blur.Of(sharper);
    for (std::size_t i = 0; i < stairs.size(); ++i) {
        curve[i] = NoFartherThan(strength.Reach, stairs[i], curve[i]);
    }
    return curve;
}

PlanPoint OnGrain(const PlanPoint& point) {
    return {std::round(point.X * kGrain) / kGrain, std::round(point.Y * kGrain) / kGrain};
}

// Keeps the points that a line needs to stay where it is but for kFine.
void Thin(const PlanLine& line, std::size_t from, std::size_t to, PlanLine& thin) {
    std::vector<std::pair<std::size_t, std::size_t>> parts{{from, to}};
    while (!parts.empty()) {
        const auto [first, last] = parts.back();
        parts.pop_back();
        double farthest = kFine;
        std::size_t split = first;
        for (std::size_t i = first + 1; i < last; ++i) {
            const double distance = DistanceToLine(line[i], line[first], line[last]);
            if (distance > farthest) {
                farthest = distance;
                split = i;
            }
        }
        if (split != first) {
            parts.emplace_back(split, last);
            parts.emplace_back(first, split);
        } else if (const PlanPoint end = OnGrain(line[last]); end != thin.back()) {
            thin.push_back(end);
        }
    }
}

// Begins a closed line at its first corner.
PlanLine Turned(const PlanLine& closed, int start) {
    PlanLine turned(closed.begin() + start, closed.end() - 1);
    turned.insert(turned.end(), closed.begin(), closed.begin() + start + 1);
    return turned;
}

}  // namespace

PlanLine SmoothCurve(const PlanLine& stairs, LineEnds ends, const CurveStrength& strength) {
    PlanLine line = InUnits(stairs);
    bool closed = ends == LineEnds::OnRing;
    std::vector<int> corners = CornerSearch(line, closed, strength.Corner).Run();
    if (closed && !corners.empty()) {
        const int first = corners.front();
        line = Turned(line, first);
        corners.erase(corners.begin());
        for (int& corner : corners) {
            corner -= first;
        }
        closed = false;
    }
    corners.push_back(static_cast<int>(line.size()) - 1);
    PlanLine smooth{OnGrain(line.front())};
    int from = 0;
    for (const int to : corners) {
        const PlanLine part(line.begin() + from, line.begin() + to + 1);
        const PlanLine curve = Curve(part, closed, strength);
        if (closed) {
            smooth = {OnGrain(curve.front())};
        }
        // In halves, or there would be nothing between the ends of a ring.
        Thin(curve, 0, curve.size() / 2, smooth);
        Thin(curve, curve.size() / 2, curve.size() - 1, smooth);
        from = to;
    }
    return smooth;
}

}  // namespace vendrel
