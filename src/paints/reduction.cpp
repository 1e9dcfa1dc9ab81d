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

void CountColors(Palette& palette, const StippleGrid& grid) {
    palette.ColorCounts = OneBased<int>(palette.PaintCount);
    for (int y = 1; y <= grid.CellsDown; ++y) {
        for (const StippleCell& cell : grid.Stipples.Row(y).From(1)) {
            if (cell.ColorIndex == 0) {
                return;
            }
            int& count = palette.ColorCounts[cell.ColorIndex];
            if (count == kMaxCounter) {
                ReportFullCounter();
            }
            ++count;
        }
    }
}

int GetLowCount(const Palette& palette) {
    return LeastUsed(palette.ColorCounts);
}

void RemoveColor(Palette& palette, StippleGrid& grid, int index) {
    PaletteReduction reduction(palette, {});
    reduction.Remove(index);
    reduction.Commit(palette, grid);
}

void ReduceColors(Palette& palette, StippleGrid& grid, Ui& screen, int target) {
    if (palette.PaintCount <= target) {
        return;
    }
    CountColors(palette, grid);
    PaletteReduction reduction(palette, palette.ColorCounts);
    while (reduction.PaintCount() > target && CanGoOn(reduction.Counts())) {
        palette.ColorCounts = reduction.Counts();
        reduction.Remove(LeastUsed(palette.ColorCounts));
        screen.SetCaption("Number of Paints Reduced to " + std::to_string(reduction.PaintCount()) +
                          " Colors");
    }
    reduction.Commit(palette, grid);
    if (reduction.PaintCount() > target) {
        ReportFullCounter();
    }
}

}  // namespace vendrel
