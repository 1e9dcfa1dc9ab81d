#include "touchup/acceptance.h"

#include <utility>

#include "shell/palette.h"
#include "shell/stipple_grid.h"

namespace vendrel {

void TakeOverCopies(WorkState& state) {
    for (StippleCell& cell : state.EditStipples.All()) {
        cell.AreaNumber = 0;
    }
    SetPalette(state, state.FoundColors);
    SetGrid(state, std::exchange(state.EditStipples, {}));
}

}  // namespace vendrel
