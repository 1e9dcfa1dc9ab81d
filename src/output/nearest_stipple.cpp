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

StippleFinder::StippleFinder(const WorkState& state, TwipsPerPixel twips)
    : state_(state),
      reach_{state.CellsAcross * twips.X, state.CellsDown * twips.Y},
      regular_(IsRegular()) {}

// A grid made by a conversion is regular. One that was kept in a file need not be: it may have
// been edited, or saved from a photo of another size.
bool StippleFinder::IsRegular() const {
    const int firstCentre = 1 + state_.HalfStipple;
    for (int row = 1; row <= state_.CellsDown; ++row) {
        const int y = firstCentre + (row - 1) * state_.StippleSize;
        int x = firstCentre;
        for (int column = 1; column <= state_.CellsAcross; ++column) {
            const StippleCell& cell = state_.Stipples(column, row);
            if (cell.X != x || cell.Y != y) {
                return false;
            }
            x += state_.StippleSize;
        }
    }
    return state_.CellsAcross > 0 && state_.CellsDown > 0;
}

CellPos StippleFinder::Search(CellPos pixel) const {
    CellPos found;
    CellPos best = reach_;
    for (int row = 1; row <= state_.CellsDown; ++row) {
        for (int column = 1; column <= state_.CellsAcross; ++column) {
            const StippleCell& cell = state_.Stipples(column, row);
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
    const int firstCentre = 1 + state_.HalfStipple;
    return {NearestOnAxis(pixel.X, firstCentre, state_.StippleSize, state_.CellsAcross),
            NearestOnAxis(pixel.Y, firstCentre, state_.StippleSize, state_.CellsDown)};
}

CellPos StippleFinder::SymbolPlace(CellPos cell) const {
    const StippleCell& stipple = state_.Stipples(cell.X, cell.Y);
    return {stipple.X - state_.HalfStipple / 2, stipple.Y - state_.HalfStipple / 2};
}

CellPos FindNearestStipple(const WorkState& state, TwipsPerPixel twips, CellPos pixel) {
    const StippleFinder finder(state, twips);
    return finder.SymbolPlace(finder.NearestCell(pixel));
}

}  // namespace vendrel
