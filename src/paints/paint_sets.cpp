#include "paints/paint_sets.h"

#include <string>
#include <utility>

#include "shell/palette.h"
#include "support/counter.h"
#include "support/error.h"

namespace vendrel {

void FillSelectedPaintsList(WorkState& state) {
    state.SelectedPaintsList.clear();
    for (const PaintSet& set : state.PaintSets) {
        if (set.Selected) {
            state.SelectedPaintsList.push_back(set.Name);
        }
    }
}

void AppendPaintsOf(const WorkState& state, std::string_view setName, PaintList& paints) {
    for (const PaintColor& paint : state.MasterColors) {
        if (paint.Mfg != setName) {
            continue;
        }
        if (paints.Count() >= kMaxCounter) {
            throw OverflowError(
                "The selected paint sets hold more than 32767 paints. Choose fewer paint sets.");
        }
        paints.Add(paint);
    }
}

void LoadColors(Workplace& place) {
    PaintList paints;
    for (const std::string& name : place.State.SelectedPaintsList) {
        AppendPaintsOf(place.State, name, paints);
    }
    SetPalette(place.State, std::move(paints));
}

}  // namespace vendrel
