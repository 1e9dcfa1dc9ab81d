#include "paints/restore.h"

#include <algorithm>
#include <utility>

#include "paints/owned_paints.h"
#include "paints/paint_sets.h"
#include "paints/template_file.h"
#include "shell/palette.h"

namespace vendrel {

int SetMaxFinalColors(const Settings& chosen, int n) {
    return std::min(chosen.FinalPaints, n);
}

void RestorePaintColors(Workplace& place) {
    WorkState& state = place.State;
    // Until the paint shop has been opened, its lists stand as it would open with them.
    if (!state.PaintShopLoaded) {
        FillSelectedPaintsList(state, state);
        state.MfgSelected = !state.TemplateMode;
    }
    if (state.MfgSelected) {
        LoadColors(state, state, state);
    } else if (!LoadTemplateColors(place, state.SelectedTemplate)) {
        return;  // a template without paints has told the user so and left the palette empty
    }
    if (state.Chosen.Buying.Asked) {
        PaintList paints = state.PaintColors;
        JoinOwned(paints, state.OwnedPaints);
        SetPalette(state, std::move(paints));
    }
}

}  // namespace vendrel
