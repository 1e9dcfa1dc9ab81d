#include "paintable/refinement.h"

#include <algorithm>

namespace vendrel {
namespace {

bool ImproveStipple(AreaMap& map, int cell) {
    const int from = map.AreaAt(cell);
    int into = from;
    SeenSum least = 0;
    for (const int beside : map.Beside(cell)) {
        const int other = map.AreaAt(beside);
        if (other == from || other == AreaMap::kNoArea || other == into) {
            continue;
        }
        if (const SeenSum cost = map.CostOfMove(cell, other); cost < least) {
            into = other;
            least = cost;
        }
    }
    if (into == from || !map.MayLeave(cell)) {
        return false;
    }
    map.Move(cell, into);
    map.SettleSums(cell, from, into);
    (void)map.JoinTwins(into, {&cell, 1});
    return true;
}

bool ImprovePaint(AreaMap& map, int area) {
    const std::span<const SeenSum> sums = map.SumsOf(area);
    const auto now = static_cast<std::size_t>(map.PaintOf(area));
    const auto best = static_cast<std::size_t>(std::ranges::min_element(sums) - sums.begin());
    if (sums[best] >= sums[now]) {
        return false;
    }
    map.Repaint(area, static_cast<int>(best));
    const std::vector<int> cells(map.CellsOf(area).begin(), map.CellsOf(area).end());
    (void)map.JoinTwins(area, cells);
    return true;
}

}  // namespace

void Refine(AreaMap& map, int rounds) {
    bool changed = true;
    for (int round = 0; round < rounds && changed; ++round) {
        changed = false;
        for (int y = 0; y < map.Down(); ++y) {
            for (int x = 0; x < map.Across(); ++x) {
                changed = ImproveStipple(map, map.CellAt(x, y)) || changed;
            }
        }
        for (int area = 0; area < map.AreaCount(); ++area) {
            changed = (map.Exists(area) && ImprovePaint(map, area)) || changed;
        }
    }
}

}  // namespace vendrel
