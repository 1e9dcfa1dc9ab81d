#include "touchup/selecting.h"

#include <algorithm>

#include "touchup/tools.h"

namespace vendrel {
namespace {

// Columns where the closed line crosses the middle of a row, from the left; a corner on the row
// belongs to the side that goes down from it.
std::vector<double> CrossingsOf(const std::vector<CellPos>& line, int row) {
    std::vector<double> crossings;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const CellPos from = line[i];
        const CellPos to = line[(i + 1) % line.size()];
        if ((from.Y <= row) != (to.Y <= row)) {
            crossings.push_back(from.X + static_cast<double>(row - from.Y) * (to.X - from.X) /
                                             (to.Y - from.Y));
        }
    }
    std::ranges::sort(crossings);
    return crossings;
}

CellSet Nothing(const EditSheet& sheet) {
    return {sheet.Across(), sheet.Down()};
}

}  // namespace

CellSet CellsBetween(const EditSheet& sheet, CellPos one, CellPos other) {
    CellSet cells = Nothing(sheet);
    const int right = std::min(std::max(one.X, other.X), sheet.Across());
    const int bottom = std::min(std::max(one.Y, other.Y), sheet.Down());
    for (int y = std::max(std::min(one.Y, other.Y), 1); y <= bottom; ++y) {
        for (int x = std::max(std::min(one.X, other.X), 1); x <= right; ++x) {
            cells.Add({x, y});
        }
    }
    return cells;
}

CellSet CellsInside(const EditSheet& sheet, const std::vector<CellPos>& line) {
    CellSet cells = Nothing(sheet);
    for (int y = 1; y <= sheet.Down(); ++y) {
        const std::vector<double> crossings = CrossingsOf(line, y);
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
            for (int x = std::max(1, static_cast<int>(crossings[i]));
                 x <= std::min(crossings[i + 1], static_cast<double>(sheet.Across())); ++x) {
                if (x >= crossings[i]) {
                    cells.Add({x, y});
                }
            }
        }
    }
    for (std::size_t i = 0; i < line.size(); ++i) {
        ForLine(line[i], line[(i + 1) % line.size()], [&cells](CellPos at) { cells.Add(at); });
    }
    return cells;
}

CellSet CellsLike(const EditSheet& sheet, CellPos at) {
    CellSet cells = Nothing(sheet);
    const int paint = sheet.PaintAt(at);
    for (int y = 1; y <= sheet.Down() && sheet.Holds(at); ++y) {
        for (int x = 1; x <= sheet.Across(); ++x) {
            if (sheet.PaintAt({x, y}) == paint) {
                cells.Add({x, y});
            }
        }
    }
    return cells;
}

CellSet AreaAround(const EditSheet& sheet, CellPos at) {
    CellSet cells = Nothing(sheet);
    if (!sheet.Holds(at)) {
        return cells;
    }
    const int paint = sheet.PaintAt(at);
    cells.Add(at);
    std::vector<CellPos> open{at};
    while (!open.empty()) {
        const CellPos center = open.back();
        open.pop_back();
        for (int y = center.Y - 1; y <= center.Y + 1; ++y) {
            for (int x = center.X - 1; x <= center.X + 1; ++x) {
                if (sheet.PaintAt({x, y}) == paint && sheet.Holds({x, y}) && !cells.Has({x, y})) {
                    cells.Add({x, y});
                    open.push_back({x, y});
                }
            }
        }
    }
    return cells;
}

}  // namespace vendrel
