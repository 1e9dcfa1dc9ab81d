#include "plan/leaders.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <optional>

#include "support/list.h"

namespace vendrel {
namespace {

// In legible heights.
constexpr double kTooSmall = 0.75;  // smaller symbols are hardly read
constexpr double kNearest = 0.8;    // from the middle of a symbol to what it points at
constexpr double kStep = 0.4;
constexpr int kSteps = 9;
constexpr double kGap = 0.15;  // between symbols, and to lines
constexpr int kDirections = 16;

bool Overlap(const PlanRect& one, const PlanRect& other) {
    return one.Left < other.Right && other.Left < one.Right && one.Top < other.Bottom &&
           other.Top < one.Bottom;
}
PlanRect Grown(const PlanRect& box, double by) {
    return {box.Left - by, box.Top - by, box.Right + by, box.Bottom + by};
}
PlanRect BoundsOf(const PlanLine& leader) {
    const auto [left, right] = std::minmax(leader[0].X, leader[1].X);
    const auto [top, bottom] = std::minmax(leader[0].Y, leader[1].Y);
    return {left, top, right, bottom};
}
double TurnOf(const PlanPoint& a, const PlanPoint& b, const PlanPoint& c) {
    return (b.X - a.X) * (c.Y - a.Y) - (b.Y - a.Y) * (c.X - a.X);
}
bool Cross(const PlanLine& one, const PlanLine& other) {
    return TurnOf(one[0], one[1], other[0]) * TurnOf(one[0], one[1], other[1]) <= 0 &&
           TurnOf(other[0], other[1], one[0]) * TurnOf(other[0], other[1], one[1]) <= 0;
}

// What symbols and lines to them cover, by squares of the picture.
class TakenPlaces {
  public:
    TakenPlaces(const PixelGrid& ids, double side)
        : side_(side), squares_(SquareAt(ids.Across()) + 1, SquareAt(ids.Down()) + 1) {}

    // Answers under which number it is known.
    int Add(const PlanRect& box, const std::optional<PlanLine>& leader) {
        const int number = static_cast<int>(taken_.size());
        taken_.push_back({box, leader});
        Each(box, [&](std::vector<int>& square) { square.push_back(number); });
        if (leader) {
            Each(BoundsOf(*leader), [&](std::vector<int>& square) { square.push_back(number); });
        }
        return number;
    }
    [[nodiscard]] bool IsFree(const PlanRect& box) {
        return AllNear(box, [&](int number) {
            const Taken& taken = At(taken_, number);
            return !Overlap(box, taken.Box) &&
                   (!taken.Leader || ClipLine(*taken.Leader, box).empty());
        });
    }
    // But for the place that it leads from.
    [[nodiscard]] bool IsFree(const PlanLine& leader, int own) {
        return AllNear(BoundsOf(leader), [&](int number) {
            const Taken& taken = At(taken_, number);
            return number == own || (ClipLine(leader, taken.Box).empty() &&
                                     (!taken.Leader || !Cross(leader, *taken.Leader)));
        });
    }

  private:
    struct Taken {
        PlanRect Box;
        std::optional<PlanLine> Leader;
    };

    [[nodiscard]] int SquareAt(double at) const {
        return std::max(0, static_cast<int>(at / side_));
    }
    template <class Do>
    void Each(const PlanRect& part, Do act) {
        const int right = std::min(SquareAt(part.Right), squares_.Across());
        const int bottom = std::min(SquareAt(part.Bottom), squares_.Down());
        for (int y = SquareAt(part.Top); y <= bottom; ++y) {
            for (int x = SquareAt(part.Left); x <= right; ++x) {
                act(squares_(x, y));
            }
        }
    }
    template <class Test>
    [[nodiscard]] bool AllNear(const PlanRect& part, Test test) {
        bool all = true;
        Each(part, [&](const std::vector<int>& square) {
            all = all && std::ranges::all_of(square, test);
        });
        return all;
    }

    double side_;
    Grid<std::vector<int>> squares_;
    std::vector<Taken> taken_;
};

class Leading {
  public:
    Leading(std::vector<PlanLabel>& labels, const PaintedRegions& regions, const LabelFit& fit,
            const LabelRules& rules)
        : labels_(labels),
          regions_(regions),
          fit_(fit),
          rules_(rules),
          legible_(fit.Air().Legible),
          taken_(regions.Ids, 4 * legible_),
          served_(regions.List.size()),
          hosts_(regions.List.size()) {}

    // What cannot be moved stays, so nobody's line may lead through where a small symbol stands.
    void Run() {
        std::vector<int> places;
        for (const PlanLabel& label : labels_) {
            places.push_back(Take(label));
            if (!IsTooSmall(label)) {
                served_[static_cast<std::size_t>(label.Region)] = true;
                if (label.Height >= legible_) {
                    hosts_[static_cast<std::size_t>(label.Region)] = true;
                }
            }
        }
        for (std::size_t i = 0; i < labels_.size(); ++i) {
            if (PlanLabel& label = labels_[i];
                IsTooSmall(label) && !served_[static_cast<std::size_t>(label.Region)]) {
                if (const auto outside = Outside(label, places[i])) {
                    label = *outside;
                    (void)Take(label);
                }
            }
        }
    }

  private:
    [[nodiscard]] bool IsTooSmall(const PlanLabel& label) const {
        return label.Height < kTooSmall * legible_;
    }
    [[nodiscard]] double AspectOf(const PlanLabel& label) const {
        return rules_.Aspects[regions_[label.Region].Value];
    }
    int Take(const PlanLabel& label) {
        return taken_.Add(
            BoxOf(label, AspectOf(label)),
            label.PointsAt ? std::optional(LeaderOf(label, AspectOf(label))) : std::nullopt);
    }

    [[nodiscard]] std::optional<PlanLabel> Outside(const PlanLabel& label, int place) {
        for (int step = 0; step < kSteps; ++step) {
            const double way = kNearest + step * kStep;
            for (int direction = 0; direction < kDirections; ++direction) {
                const double angle = 2 * std::numbers::pi * direction / kDirections;
                const PlanLabel moved{label.Region,
                                      {label.Centre.X + way * legible_ * std::cos(angle),
                                       label.Centre.Y + way * legible_ * std::sin(angle)},
                                      legible_,
                                      label.Centre};
                if (MayStand(moved, place)) {
                    return moved;
                }
            }
        }
        return std::nullopt;
    }
    [[nodiscard]] bool MayStand(const PlanLabel& label, int place) {
        const int x = static_cast<int>(std::floor(label.Centre.X));
        const int y = static_cast<int>(std::floor(label.Centre.Y));
        if (!regions_.Ids.Holds(x, y)) {
            return false;
        }
        const int host = regions_.Ids(x, y);
        const double aspect = AspectOf(label);
        const PlanRect box = BoxOf(label, aspect);
        return host != label.Region && hosts_[static_cast<std::size_t>(host)] &&
               !rules_.Cuts.Meet(box) && rules_.Cuts.AreTogether(label.Centre, *label.PointsAt) &&
               taken_.IsFree(Grown(box, kGap * legible_)) &&
               fit_.At(label.Centre, aspect, host).Height >= legible_ &&
               taken_.IsFree(LeaderOf(label, aspect), place);
    }

    std::vector<PlanLabel>& labels_;
    const PaintedRegions& regions_;
    const LabelFit& fit_;
    const LabelRules& rules_;
    double legible_;
    TakenPlaces taken_;
    std::vector<bool> served_;  // regions with a symbol that can be read
    std::vector<bool> hosts_;   // regions with room for a legible symbol of their own
};

}  // namespace

void MoveOutside(std::vector<PlanLabel>& labels, const PaintedRegions& regions, const LabelFit& fit,
                 const LabelRules& rules) {
    Leading(labels, regions, fit, rules).Run();
}

}  // namespace vendrel
