#include "paints/palette_reduction.h"

#include <cassert>
#include <numeric>
#include <utility>

#include "paints/color_match.h"
#include "support/counter.h"

namespace vendrel {

int LeastUsed(const OneBased<int>& counts) {
    int low = kMaxCounter;
    int result = 0;
    for (int i = 1; i <= counts.Count(); ++i) {
        if (counts[i] < low) {
            low = counts[i];
            result = i;
        }
    }
    return result;
}

PaletteReduction::PaletteReduction(const Palette& palette, OneBased<int> counts)
    : origins_(palette.PaintCount), counts_(std::move(counts)) {
    std::iota(origins_.begin(), origins_.end(), 1);
    colors_.Reserve(palette.PaintCount);
    for (const PaintColor& paint : palette.PaintColors) {
        colors_.Add({paint.Red, paint.Green, paint.Blue});
    }
    counts_.Resize(colors_.Count());
}

void PaletteReduction::Remove(int index) {
    assert(index >= 1 && index <= PaintCount());
    const int into = FindNearest(colors_, colors_[index], index);
    merges_.push_back({origins_[index], origins_[into]});
    if (into > 0) {
        counts_[into] += counts_[index];
    }
    colors_.Remove(index);
    origins_.Remove(index);
    counts_.Remove(index);
}

// Backwards, so that a paint merged into one that went later finds where that one ended up.
OneBased<int> PaletteReduction::NewIndices() const {
    OneBased<int> indices(origins_.Count() + static_cast<int>(merges_.size()));
    for (int i = 1; i <= origins_.Count(); ++i) {
        indices[origins_[i]] = i;
    }
    for (std::size_t i = merges_.size(); i-- > 0;) {
        indices[merges_[i].From] = indices[merges_[i].Into];
    }
    return indices;
}

void PaletteReduction::Commit(Palette& palette, StippleGrid& grid) const {
    if (merges_.empty()) {
        return;
    }
    const OneBased<int> indices = NewIndices();
    for (int y = 1; y <= grid.CellsDown; ++y) {
        for (StippleCell& cell : grid.Stipples.Row(y).From(1)) {
            cell.ColorIndex = indices[cell.ColorIndex];
        }
    }
    PaintList kept;
    for (const int origin : origins_) {
        kept.Add(std::move(palette.PaintColors[origin]));
    }
    SetPalette(palette, std::move(kept));
}

}  // namespace vendrel
