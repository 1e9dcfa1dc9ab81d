#include "cleanup/cells_by_paint.h"

#include <cassert>
#include <numeric>

namespace vendrel {
namespace {

template <class Visit>
void VisitCells(const Grid<StippleCell>& stipples, Visit visit) {
    for (int y = 1; y <= stipples.Down(); ++y) {
        const auto row = stipples.Row(y);
        for (int x = 1; x <= stipples.Across(); ++x) {
            visit(CellPos{x, y}, static_cast<std::size_t>(row[x].ColorIndex));
        }
    }
}

}  // namespace

CellsByPaint::CellsByPaint(const Grid<StippleCell>& stipples, int paintCount)
    : starts_(static_cast<std::size_t>(paintCount) + 2) {
    VisitCells(stipples, [this](CellPos, std::size_t paint) {
        assert(paint + 1 < starts_.size());
        ++starts_[paint + 1];
    });
    std::partial_sum(starts_.begin(), starts_.end(), starts_.begin());
    cells_.resize(starts_.back());
    std::vector<std::size_t> next = starts_;
    VisitCells(stipples,
               [this, &next](CellPos at, std::size_t paint) { cells_[next[paint]++] = at; });
}

}  // namespace vendrel
