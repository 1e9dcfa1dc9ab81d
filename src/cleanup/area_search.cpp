#include "cleanup/area_search.h"

#include <algorithm>

namespace vendrel {

bool CheckLoner(const Grid<StippleCell>& stipples, int x, int y, int colorIndex) {
    return std::none_of(kNeighbours.begin(), kNeighbours.end(), [&](const CellPos& step) {
        const CellPos to{x + step.X, y + step.Y};
        return SearchMayStep(step, to, stipples.Across(), stipples.Down()) &&
               stipples(to.X, to.Y).ColorIndex == colorIndex;
    });
}

int CountAreas(const Grid<StippleCell>& stipples) {
    Grid<CellMark> marks(stipples.Across(), stipples.Down());
    CellQueue queue(stipples.Across(), stipples.Down());
    AreaSearch search{stipples, marks, queue};
    const auto nothing = [](auto...) {};
    int areas = 0;
    // Cells of different paints never meet in a search, so the order of the paints is of no matter.
    for (int y = 1; y <= stipples.Down(); ++y) {
        for (int x = 1; x <= stipples.Across(); ++x) {
            const int paint = stipples(x, y).ColorIndex;
            if (paint == 0 || marks(x, y).Visited) {
                continue;
            }
            ++areas;
            marks(x, y).Visited = true;
            if (!CheckLoner(stipples, x, y, paint)) {
                search.Grow({x, y}, paint, nothing, nothing, nothing);
            }
        }
    }
    return areas;
}

}  // namespace vendrel
