#include "output/nearest_stipple.h"

#include <algorithm>
#include <cstdlib>

namespace vendrel {
namespace {

// Column (or row) of the centre nearest to `position`, the later of two equally near ones, when
// the first centre lies at `first` and the others follow every `step` pixels.
int NearestOnAxis(int position, int first, int step, int count) {
    return 1 + std::clamp((position - first + step / 2) / step, 0, count - 1);
}

}  // namespace

StippleFinder::StippleFinder(const StippleGrid& grid, const WorkSettings& settings,
                             TwipsPerPixel twips)
    : grid_(grid),
      settings_(settings),
      reach_{grid.CellsAcross * twips.X, grid.CellsDown * twips.Y},
      regular_(IsRegular()) {}

// A grid made by a conversion is regular. One that was kept in a file need not be: it may have
// been edited, or saved from a photo of another size.
bool StippleFinder::IsRegular() const {
    const int firstCentre = 1 + settings_.HalfStipple;
    for (int row = 1; row <= grid_.CellsDown; ++row) {
        const int y = firstCentre + (row - 1) * settings_.StippleSize;
        int x = firstCentre;
        for (int column = 1; column <= grid_.CellsAcross; ++column) {
            const StippleCell& cell = grid_.Stipples(column, row);
            if (cell.X != x || cell.Y != y) {
                return false;
            }
            x += settings_.StippleSize;
        }
    }
    return grid_.CellsAcross > 0 && grid_.CellsDown > 0;
}

CellPos StippleFinder::Search(CellPos pixel) const {
    CellPos found;
    CellPos best = reach_;
    for (int row = 1; row <= grid_.CellsDown; ++row) {
        for (int column = 1; column <= grid_.CellsAcross; ++column) {
            const StippleCell& cell = grid_.Stipples(column, row);
            const CellPos away{std::abs(cell.X - pixel.X), std::abs(cell.Y - pixel.Y)};
            if (away.X <= best.X && away.Y <= best.Y) {
                best = away;
                found = {column, row};
            }
        }
    }
    return found;
}

CellPos StippleFinder::NearestCell(CellPos pixel) const {
    if (!regular_) {
        return Search(pixel);
    }
    const int firstCentre = 1 + settings_.HalfStipple;
    return {NearestOnAxis(pixel.X, firstCentre, settings_.StippleSize, grid_.CellsAcross),
            NearestOnAxis(pixel.Y, firstCentre, settings_.StippleSize, grid_.CellsDown)};
}

CellPos StippleFinder::SymbolPlace(CellPos cell) const {
    const StippleCell& stipple = grid_.Stipples(cell.X, cell.Y);
    return {stipple.X - settings_.HalfStipple / 2, stipple.Y - settings_.HalfStipple / 2};
}

CellPos FindNearestStipple(const StippleGrid& grid, const WorkSettings& settings,
                           TwipsPerPixel twips, CellPos pixel) {
    const StippleFinder finder(grid, settings, twips);
    return finder.SymbolPlace(finder.NearestCell(pixel));
}

}  // namespace vendrel
