#include "paints/paint_sets.h"

#include <string>
#include <utility>

#include "support/counter.h"
#include "support/error.h"

namespace vendrel {

void FillSelectedPaintsList(WorkState& state) {
    state.SelectedPaintsList.clear();
    for (std::size_t i = 1; i < state.PaintSets.size(); ++i) {
        if (state.PaintSets[i].Selected) {
            state.SelectedPaintsList.push_back(state.PaintSets[i].Name);
        }
    }
}

void AppendPaintsOf(const WorkState& state, std::string_view setName,
                    std::vector<PaintColor>& paints) {
    for (std::size_t i = 1; i < state.MasterColors.size(); ++i) {
        if (state.MasterColors[i].Mfg != setName) {
            continue;
        }
        if (paints.size() > static_cast<std::size_t>(kMaxCounter)) {
            throw OverflowError(
                "The selected paint sets hold more than 32767 paints. Choose fewer paint sets.");
        }
        paints.push_back(state.MasterColors[i]);
    }
}

void SetPalette(WorkState& state, std::vector<PaintColor> paints) {
    state.PaintColors = std::move(paints);
    state.PaintCount = static_cast<int>(state.PaintColors.size()) - 1;
}

void LoadColors(Workplace& place) {
    std::vector<PaintColor> paints(1);
    for (const std::string& name : place.State.SelectedPaintsList) {
        AppendPaintsOf(place.State, name, paints);
    }
    SetPalette(place.State, std::move(paints));
}

}  // namespace vendrel
