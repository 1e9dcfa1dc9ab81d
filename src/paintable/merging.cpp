#include "paintable/merging.h"

#include <algorithm>
#include <functional>
#include <queue>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace vendrel {
namespace {

// The areas beside one, ascending, with the length of the border.
std::vector<std::pair<int, int>> Neighbors(const AreaMap& map, int area) {
    std::vector<int> sides;
    for (const int cell : map.CellsOf(area)) {
        for (const int beside : map.Beside(cell)) {
            if (map.AreaAt(beside) != area && map.AreaAt(beside) != AreaMap::kNoArea) {
                sides.push_back(map.AreaAt(beside));
            }
        }
    }
    std::ranges::sort(sides);
    std::vector<std::pair<int, int>> neighbors;
    for (const int other : sides) {
        if (neighbors.empty() || neighbors.back().first != other) {
            neighbors.emplace_back(other, 0);
        }
        ++neighbors.back().second;
    }
    return neighbors;
}

void OfferWhole(const AreaMap& map, int area, std::pair<int, int> neighbor, MergePlan& best) {
    const auto [other, border] = neighbor;
    const std::span<const SeenSum> own = map.SumsOf(area);
    const std::span<const SeenSum> others = map.SumsOf(other);
    int paint = map.PaintOf(other);
    const auto sumOf = [&](int p) {
        const auto at = static_cast<std::size_t>(p);
        return own[at] + others[at];
    };
    for (int p = 0; p < map.PaintCount(); ++p) {
        paint = sumOf(p) < sumOf(paint) ? p : paint;
    }
    const SeenSum before = own[static_cast<std::size_t>(map.PaintOf(area))] +
                           others[static_cast<std::size_t>(map.PaintOf(other))];
    const SeenSum cost = sumOf(paint) - before - border * kSideCost;
    if (!best.Possible || cost < best.Cost) {
        best = {true, cost, other, paint, {}};
    }
}

// Hands out an area stipple by stipple, the cheapest first, from its border inward.
class Scattering {
  public:
    Scattering(const AreaMap& map, int area) : map_(map), area_(area) {}

    MergePlan Run() {
        for (const int cell : map_.CellsOf(area_)) {
            for (const int beside : map_.Beside(cell)) {
                Offer(cell, map_.AreaAt(beside));
            }
        }
        while (!offers_.empty()) {
            const auto [cost, cell, into] = offers_.top();
            offers_.pop();
            if (given_.emplace(cell, into).second) {
                Give(cost, cell, into);
            }
        }
        plan_.Possible = !plan_.Steps.empty();
        return std::move(plan_);
    }

  private:
    using Priced = std::tuple<SeenSum, int, int>;  // cost, stipple, area

    void Offer(int cell, int into) {
        if (into != area_ && into != AreaMap::kNoArea) {
            offers_.emplace(
                map_.CostOf(cell, map_.PaintOf(into)) - map_.CostOf(cell, map_.PaintOf(area_)),
                cell, into);
        }
    }
    void Give(SeenSum cost, int cell, int into) {
        plan_.Cost += cost;
        plan_.Steps.push_back({cell, into});
        for (const int beside : map_.Beside(cell)) {
            const auto given = given_.find(beside);
            const int now = given != given_.end() ? given->second : map_.AreaAt(beside);
            if (now == area_) {
                Offer(beside, into);
            } else if (given != given_.end()) {
                plan_.Cost += now == into ? 0 : kSideCost;
            } else {
                plan_.Cost -= now == into ? kSideCost : 0;
            }
        }
    }

    const AreaMap& map_;
    int area_;
    std::priority_queue<Priced, std::vector<Priced>, std::greater<>> offers_;
    std::unordered_map<int, int> given_;
    MergePlan plan_;
};

void MergeWhole(AreaMap& map, int area, const MergePlan& plan, std::vector<int>& touched) {
    int into = plan.Into;
    const bool repainted = plan.Paint != map.PaintOf(into);
    if (map.CellsOf(area).size() > map.CellsOf(into).size()) {
        std::swap(area, into);
    }
    map.Repaint(into, plan.Paint);
    const std::vector<int> moved(map.CellsOf(area).begin(), map.CellsOf(area).end());
    map.Unite(area, into);
    // Twins of the neighbor cannot lie beside it, but beside what it took in.
    std::vector<int> all;
    const bool isSwapped = into != plan.Into;
    if (repainted || isSwapped) {
        all.assign(map.CellsOf(into).begin(), map.CellsOf(into).end());
    }
    touched.push_back(map.JoinTwins(into, all.empty() ? moved : all));
}

void MergeInParts(AreaMap& map, int area, const MergePlan& plan, std::vector<int>& touched) {
    for (const MergePlan::Step& step : plan.Steps) {
        map.Move(step.Cell, step.Into);
        map.SettleSums(step.Cell, area, step.Into);
    }
    for (const MergePlan::Step& step : plan.Steps) {
        const int cell = step.Cell;
        touched.push_back(map.JoinTwins(map.AreaAt(cell), {&cell, 1}));
    }
}

}  // namespace

MergePlan PlanMerge(const AreaMap& map, int area) {
    MergePlan best;
    for (const auto& neighbor : Neighbors(map, area)) {
        OfferWhole(map, area, neighbor, best);
    }
    if (map.CellsOf(area).size() > 1) {
        MergePlan parts = Scattering(map, area).Run();
        if (parts.Possible && parts.Cost < best.Cost) {
            best = std::move(parts);
        }
    }
    return best;
}

void Merge(AreaMap& map, int area, const MergePlan& plan, std::vector<int>& touched) {
    if (plan.Steps.empty()) {
        MergeWhole(map, area, plan, touched);
    } else {
        MergeInParts(map, area, plan, touched);
    }
}

}  // namespace vendrel
