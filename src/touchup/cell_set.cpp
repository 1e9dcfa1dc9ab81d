#include "touchup/cell_set.h"

namespace vendrel {

std::vector<CellPos> CellSet::Cells() const {
    std::vector<CellPos> cells;
    cells.reserve(static_cast<std::size_t>(count_));
    for (int y = 1; y <= Down(); ++y) {
        for (int x = 1; x <= Across(); ++x) {
            if (Has({x, y})) {
                cells.push_back({x, y});
            }
        }
    }
    return cells;
}

CellRect CellSet::Bounds() const {
    CellRect bounds;
    for (const CellPos& at : Cells()) {
        bounds.Include(at);
    }
    return bounds;
}

CellSet Join(CellSet selected, const CellSet& chosen, Joining how) {
    if (how == Joining::Instead) {
        return chosen;
    }
    for (const CellPos& at : chosen.Cells()) {
        if (how == Joining::Add) {
            selected.Add(at);
        } else {
            selected.Remove(at);
        }
    }
    return selected;
}

CellSet Inverted(const CellSet& cells) {
    CellSet others(cells.Across(), cells.Down());
    for (int y = 1; y <= cells.Down(); ++y) {
        for (int x = 1; x <= cells.Across(); ++x) {
            if (!cells.Has({x, y})) {
                others.Add({x, y});
            }
        }
    }
    return others;
}

CellSet Grown(const CellSet& cells) {
    CellSet grown = cells;
    for (const CellPos& at : cells.Cells()) {
        for (int y = at.Y - 1; y <= at.Y + 1; ++y) {
            for (int x = at.X - 1; x <= at.X + 1; ++x) {
                grown.Add({x, y});
            }
        }
    }
    return grown;
}

CellSet Shrunk(const CellSet& cells) {
    return Inverted(Grown(Inverted(cells)));
}

CellSet Shifted(const CellSet& cells, CellPos by) {
    CellSet shifted(cells.Across(), cells.Down());
    for (const CellPos& at : cells.Cells()) {
        shifted.Add({at.X + by.X, at.Y + by.Y});
    }
    return shifted;
}

}  // namespace vendrel
