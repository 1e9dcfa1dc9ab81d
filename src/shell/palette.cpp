#include "shell/palette.h"

#include <utility>

#include "support/counter.h"

namespace vendrel {

void SetCatalogue(WorkState& state, PaintList paints) {
    state.MasterColors = std::move(paints);
    state.MasterCount = state.MasterColors.Count();
}

void SetPalette(WorkState& state, PaintList paints) {
    state.PaintColors = std::move(paints);
    state.PaintCount = state.PaintColors.Count();
}

void SetFoundColors(WorkState& state, PaintList paints) {
    state.FoundColors = std::move(paints);
    state.FoundCount = state.FoundColors.Count();
}

void AddFoundColor(WorkState& state, PaintColor paint) {
    CountUp(state.FoundCount, "paints found in the photo", "fewer paint sets");
    state.FoundColors.Add(std::move(paint));
}

}  // namespace vendrel
