#include "paints/palette_reduction.h"

#include <cassert>
#include <numeric>
#include <utility>

#include "paints/color_match.h"
#include "support/counter.h"

namespace vendrel {
namespace {

template <class T>
void EraseAt(std::vector<T>& list, int index) {
    list.erase(list.begin() + index);
}

std::size_t At(int index) {
    return static_cast<std::size_t>(index);
}

}  // namespace

int LeastUsed(std::span<const int> counts) {
    int low = kMaxCounter;
    int result = 0;
    for (std::size_t i = 1; i < counts.size(); ++i) {
        if (counts[i] < low) {
            low = counts[i];
            result = static_cast<int>(i);
        }
    }
    return result;
}

PaletteReduction::PaletteReduction(const WorkState& state, std::vector<int> counts)
    : origins_(Palette(state).size()), counts_(std::move(counts)) {
    std::iota(origins_.begin(), origins_.end(), 0);
    colors_.reserve(origins_.size());
    for (const PaintColor& paint : Palette(state)) {
        colors_.push_back({paint.Red, paint.Green, paint.Blue});
    }
    counts_.resize(colors_.size());
}

void PaletteReduction::Remove(int index) {
    assert(index >= 1 && index <= PaintCount());
    const int into = FindNearest<Channels>(colors_, colors_[At(index)], index);
    merges_.push_back({origins_[At(index)], origins_[At(into)]});
    if (into > 0) {
        counts_[At(into)] += counts_[At(index)];
    }
    EraseAt(colors_, index);
    EraseAt(origins_, index);
    EraseAt(counts_, index);
}

// Backwards, so that a paint merged into one that went later finds where that one ended up.
std::vector<int> PaletteReduction::NewIndices() const {
    std::vector<int> indices(origins_.size() + merges_.size());
    for (std::size_t i = 1; i < origins_.size(); ++i) {
        indices[At(origins_[i])] = static_cast<int>(i);
    }
    for (std::size_t i = merges_.size(); i-- > 0;) {
        indices[At(merges_[i].From)] = indices[At(merges_[i].Into)];
    }
    return indices;
}

void PaletteReduction::Commit(WorkState& state) const {
    if (merges_.empty()) {
        return;
    }
    const std::vector<int> indices = NewIndices();
    for (int y = 1; y <= state.CellsDown; ++y) {
        for (StippleCell& cell : state.Stipples.Row(y).subspan(1)) {
            cell.ColorIndex = indices[At(cell.ColorIndex)];
        }
    }
    for (std::size_t i = 1; i < origins_.size(); ++i) {
        if (At(origins_[i]) != i) {
            state.PaintColors[i] = std::move(state.PaintColors[At(origins_[i])]);
        }
    }
    state.PaintColors.resize(origins_.size());
    state.PaintCount = PaintCount();
}

}  // namespace vendrel
