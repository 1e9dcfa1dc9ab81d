#include "touchup/edit_sheet.h"

#include <algorithm>
#include <utility>

namespace vendrel {

int EditSheet::Across() const {
    return std::min(state_.CellsAcross, state_.EditStipples.Across());
}

int EditSheet::Down() const {
    return std::min(state_.CellsDown, state_.EditStipples.Down());
}

int EditSheet::PaintCount() const {
    return std::min(state_.FoundCount, static_cast<int>(state_.FoundColors.size()) - 1);
}

void EditSheet::AddCount(int paint, int step) {
    if (HoldsPaint(paint)) {
        state_.FoundColors[static_cast<std::size_t>(paint)].CellCount += step;
    }
}

void EditSheet::SetPaint(CellPos pos, int paint) {
    int& index = state_.EditStipples(pos.X, pos.Y).ColorIndex;
    AddCount(index, -1);
    AddCount(paint, 1);
    index = paint;
}

void EditSheet::Recount() {
    for (PaintColor& paint : state_.FoundColors) {
        paint.CellCount = 0;
    }
    for (int y = 1; y <= Down(); ++y) {
        for (int x = 1; x <= Across(); ++x) {
            AddCount(state_.EditStipples(x, y).ColorIndex, 1);
        }
    }
}

SheetContents EditSheet::Copy() const {
    return {state_.FoundColors, state_.FoundCount, state_.EditStipples,
            state_.CellsAcross, state_.CellsDown,  state_.FinalColors};
}

void EditSheet::Exchange(SheetContents& other) {
    std::swap(state_.FoundColors, other.FoundColors);
    std::swap(state_.FoundCount, other.FoundCount);
    std::swap(state_.EditStipples, other.EditStipples);
    std::swap(state_.CellsAcross, other.CellsAcross);
    std::swap(state_.CellsDown, other.CellsDown);
    std::swap(state_.FinalColors, other.FinalColors);
}

std::string EditSheet::Flaw() const {
    if (state_.CellsAcross > Across() || state_.CellsDown > Down()) {
        return "more stipples were announced than the picture has";
    }
    if (state_.FoundCount > PaintCount()) {
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
