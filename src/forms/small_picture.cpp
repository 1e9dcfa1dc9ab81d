#include "forms/small_picture.h"

#include "shell/stipple_grid.h"

namespace vendrel {

Surface SmallPicture(const WorkState& state) {
    Surface small(state.CellsAcross, state.CellsDown);
    for (int y = 1; y <= state.CellsDown; ++y) {
        for (int x = 1; x <= state.CellsAcross; ++x) {
            small.Set(x - 1, y - 1, ColorOf(state.PaintColors[state.Stipples(x, y).ColorIndex]));
        }
    }
    return small;
}

std::vector<CellPos> StipplesPaintedWith(const StippleGrid& grid, int paint) {
    std::vector<CellPos> places;
    for (int y = 1; y <= grid.CellsDown; ++y) {
        for (int x = 1; x <= grid.CellsAcross; ++x) {
            if (grid.Stipples(x, y).ColorIndex == paint) {
                places.push_back({x, y});
            }
        }
    }
    return places;
}

bool IsPainted(const Workplace& place) {
    return place.MainMenu[MenuId::PrintMenu].Enabled;
}

}  // namespace vendrel
