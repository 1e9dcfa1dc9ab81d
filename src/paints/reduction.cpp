#include "paints/reduction.h"

#include <algorithm>
#include <string>
#include <vector>

#include "paints/color_match.h"
#include "paints/palette_reduction.h"
#include "support/counter.h"
#include "support/error.h"

namespace vendrel {
namespace {

// Counting the grid afresh would trip over a paint that has taken in too many others, and a paint
// can only be the least used with fewer stipples than the counter holds.
bool CanGoOn(const OneBased<int>& counts) {
    const auto fits = [](int count) { return count <= kMaxCounter; };
    return std::ranges::all_of(counts, fits) && LeastUsed(counts) > 0;
}

[[noreturn]] void ReportFullCounter() {
    throw OverflowError(
        "More than 32767 stipples of one paint. Try an easier difficulty or more final paints.");
}

}  // namespace

void CountColors(WorkState& state) {
    state.ColorCounts = OneBased<int>(state.PaintCount);
    for (int y = 1; y <= state.CellsDown; ++y) {
        for (const StippleCell& cell : state.Stipples.Row(y).From(1)) {
            if (cell.ColorIndex == 0) {
                return;
            }
            int& count = state.ColorCounts[cell.ColorIndex];
            if (count == kMaxCounter) {
                ReportFullCounter();
            }
            ++count;
        }
    }
}

int GetLowCount(const WorkState& state) {
    return LeastUsed(state.ColorCounts);
}

void RemoveColor(WorkState& state, int index) {
    PaletteReduction reduction(state, {});
    reduction.Remove(index);
    reduction.Commit(state);
}

void ReduceColors(Workplace& place, int target) {
    WorkState& state = place.State;
    if (state.PaintCount <= target) {
        return;
    }
    CountColors(state);
    PaletteReduction reduction(state, state.ColorCounts);
    while (reduction.PaintCount() > target && CanGoOn(reduction.Counts())) {
        state.ColorCounts = reduction.Counts();
        reduction.Remove(LeastUsed(state.ColorCounts));
        place.Screen.SetCaption("Number of Paints Reduced to " +
                                std::to_string(reduction.PaintCount()) + " Colors");
    }
    reduction.Commit(state);
    if (reduction.PaintCount() > target) {
        ReportFullCounter();
    }
}

}  // namespace vendrel
