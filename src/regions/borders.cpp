#include "regions/borders.h"

#include <algorithm>
#include <numeric>

#include "support/list.h"

namespace vendrel {
namespace {

// Visits every two places side by side that belong to different regions, from both sides.
template <class Visit>
void VisitSides(const ValueGrid& ids, Visit visit) {
    for (int y = 0; y <= ids.Down(); ++y) {
        for (int x = 0; x <= ids.Across(); ++x) {
            const int id = ids(x, y);
            if (x > 0 && ids(x - 1, y) != id) {
                visit(id, ids(x - 1, y));
                visit(ids(x - 1, y), id);
            }
            if (y > 0 && ids(x, y - 1) != id) {
                visit(id, ids(x, y - 1));
                visit(ids(x, y - 1), id);
            }
        }
    }
}

}  // namespace

Borders FindBorders(const Regions& regions) {
    std::vector<std::size_t> starts(regions.List.size() + 1);
    VisitSides(regions.Ids, [&](int id, int) { ++At(starts, id + 1); });
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    std::vector<int> sides(starts.back());
    std::vector<std::size_t> next = starts;
    VisitSides(regions.Ids, [&](int id, int beside) { sides[At(next, id)++] = beside; });
    std::vector<Border> list;
    for (std::size_t id = 0; id < regions.List.size(); ++id) {
        const auto own = std::span(sides).subspan(starts[id], starts[id + 1] - starts[id]);
        std::ranges::sort(own);
        starts[id] = list.size();
        for (const int beside : own) {
            if (list.size() == starts[id] || list.back().Beside != beside) {
                list.push_back({beside, 0});
            }
            ++list.back().Length;
        }
    }
    starts.back() = list.size();
    return {std::move(starts), std::move(list)};
}

}  // namespace vendrel
