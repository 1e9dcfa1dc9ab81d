#include "paints/restore.h"

#include <algorithm>

#include "paints/paint_sets.h"
#include "paints/template_file.h"

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
        return;
    }
    // A template without paints has told the user so and left the palette empty.
    (void)LoadTemplateColors(place, state.SelectedTemplate);
}

}  // namespace vendrel
