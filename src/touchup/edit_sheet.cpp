#include "touchup/edit_sheet.h"

#include <algorithm>
#include <utility>

#include "shell/found_palette.h"
#include "shell/stipple_grid.h"

namespace vendrel {

void EditSheet::Open() {
    SetFoundColors(state_, state_.PaintColors);
    spare_.clear();
    state_.EditStipples = state_.Stipples;
    announced_ = {state_.PaintCount, state_.CellsAcross, state_.CellsDown};
    Recount();
}

void EditSheet::Announce(const SheetSizes& sizes) {
    announced_ = sizes;
    PaintList paints = std::move(state_.FoundColors);
    for (; paints.Count() > sizes.Paints; paints.Remove(paints.Count())) {
        spare_.push_back(std::move(paints.Last()));
    }
    for (; paints.Count() < sizes.Paints && !spare_.empty(); spare_.pop_back()) {
        paints.Add(std::move(spare_.back()));
    }
    SetFoundColors(state_, std::move(paints));
}

int EditSheet::Across() const {
    return std::min(announced_.Across, state_.EditStipples.Across());
}

int EditSheet::Down() const {
    return std::min(announced_.Down, state_.EditStipples.Down());
}

void EditSheet::AddCount(int paint, int step) {
    if (HoldsPaint(paint)) {
        state_.FoundColors[paint].CellCount += step;
    }
}

void EditSheet::SetPaint(CellPos pos, int paint) {
    int& index = state_.EditStipples(pos.X, pos.Y).ColorIndex;
    AddCount(index, -1);
    AddCount(paint, 1);
    index = paint;
}

void EditSheet::Recount() {
    const OneBased<int> counts = CountStipples(state_.EditStipples, Across(), Down(), PaintCount());
    for (int p = 1; p <= PaintCount(); ++p) {
        state_.FoundColors[p].CellCount = counts[p];
    }
}

SheetContents EditSheet::Copy() const {
    return {state_.FoundColors, spare_, state_.EditStipples, announced_, state_.FinalColors};
}

void EditSheet::Exchange(SheetContents& other) {
    PaintList paints = std::exchange(other.FoundColors, std::move(state_.FoundColors));
    SetFoundColors(state_, std::move(paints));
    std::swap(spare_, other.Spare);
    std::swap(state_.EditStipples, other.EditStipples);
    std::swap(announced_, other.Announced);
    std::swap(state_.FinalColors, other.FinalColors);
}

std::string EditSheet::Flaw() const {
    if (announced_.Across > Across() || announced_.Down > Down()) {
        return "more stipples were announced than the picture has";
    }
    if (announced_.Paints > PaintCount()) {
        return "more paints were announced than the palette has";
    }
    for (int y = 1; y <= Down(); ++y) {
        for (int x = 1; x <= Across(); ++x) {
            if (!HoldsPaint(PaintAt({x, y}))) {
                return "the stipple in column " + std::to_string(x) + " of row " +
                       std::to_string(y) + " has a paint that is not in the palette";
            }
        }
    }
    return {};
}

}  // namespace vendrel
