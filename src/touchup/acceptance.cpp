#include "touchup/acceptance.h"

#include <utility>

namespace vendrel {

void TakeOverCopies(Palette& palette, StippleGrid& grid, const FoundPalette& found,
                    EditedGrid& edited) {
    for (StippleCell& cell : edited.EditStipples.All()) {
        cell.AreaNumber = 0;
    }
    SetPalette(palette, found.FoundColors);
    SetGrid(grid, std::exchange(edited.EditStipples, {}));
}

}  // namespace vendrel
