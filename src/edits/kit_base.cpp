#include "edits/kit_base.h"

#include <utility>

namespace vendrel {

void KeepBase(KitEdits& edits, const Palette& palette, const StippleGrid& grid) {
    edits.BasePaints = palette.PaintColors;
    edits.Base = grid.Stipples;
}

void StartBase(KitEdits& edits, EditPast& past, const Palette& palette, const StippleGrid& grid) {
    ForgetEdits(edits, past);
    KeepBase(edits, palette, grid);
}

void RequireBase(KitEdits& edits, EditPast& past, const Palette& palette, const StippleGrid& grid) {
    if (edits.BasePaints.Empty() || edits.Base.Across() != grid.CellsAcross ||
        edits.Base.Down() != grid.CellsDown) {
        StartBase(edits, past, palette, grid);
    }
}

void ForgetEdits(KitEdits& edits, EditPast& past) {
    edits = {};
    past = {};
}

LayReport LayOnBase(const KitEdits& edits, Palette& palette, StippleGrid& grid,
                    const LayTerms& terms) {
    LaidEdits laid = LayEdits({edits.BasePaints, edits.Base}, edits.Edits, terms);
    SetPalette(palette, std::move(laid.Paints));
    SetGrid(grid, std::move(laid.Cells));
    return std::move(laid.Report);
}

void LayOverConversion(WorkState& state) {
    KeepBase(state, state, state);
    state.LaidOn.clear();
    if (!state.Edits.Empty()) {
        state.LaidOn =
            Sentence(LayOnBase(state, state, state, {.Exchanged = ExchangedPaints::Leave}));
    }
}

}  // namespace vendrel
