#include "forms/painting_preview.h"

#include "cleanup/paint_pass.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "support/error.h"

namespace vendrel {

const Surface& PaintingPreview::Paint(const PaintList& paints, const Grid<StippleCell>& cells) {
    WorkState& state = scratch_.State;
    if (cells.Across() != state.CellsAcross || cells.Down() != state.CellsDown) {
        throw Error("Stipples of another shape are painted once they are accepted.");
    }
    SetPalette(state, paints);
    SetGrid(state, cells);
    for (StippleCell& cell : state.Stipples.All()) {
        cell.AreaNumber = 0;
    }
    PaintAllCells(scratch_.Place);
    return scratch_.Frames.WorkFrame.Picture;
}

}  // namespace vendrel
