#include "touchup/edit_sheet.h"

#include <algorithm>
#include <utility>

namespace vendrel {

void EditSheet::Open(const Palette& palette, const StippleGrid& grid) {
    SetFoundColors(found_, palette.PaintColors);
    spare_.clear();
    edited_.EditStipples = grid.Stipples;
    announced_ = {palette.PaintCount, grid.CellsAcross, grid.CellsDown};
    Recount();
}

void EditSheet::Announce(const SheetSizes& sizes, int finalColors) {
    announced_ = sizes;
    settings_.FinalColors = finalColors;
    PaintList paints = std::move(found_.FoundColors);
    for (; paints.Count() > sizes.Paints; paints.Remove(paints.Count())) {
        spare_.push_back(std::move(paints.Last()));
    }
    for (; paints.Count() < sizes.Paints && !spare_.empty(); spare_.pop_back()) {
        paints.Add(std::move(spare_.back()));
    }
    SetFoundColors(found_, std::move(paints));
}

int EditSheet::Across() const {
    return std::min(announced_.Across, edited_.EditStipples.Across());
}

int EditSheet::Down() const {
    return std::min(announced_.Down, edited_.EditStipples.Down());
}

void EditSheet::AddCount(int paint, int step) {
    if (HoldsPaint(paint)) {
        found_.FoundColors[paint].CellCount += step;
    }
}

void EditSheet::SetPaint(CellPos pos, int paint) {
    int& index = edited_.EditStipples(pos.X, pos.Y).ColorIndex;
    AddCount(index, -1);
    AddCount(paint, 1);
    index = paint;
}

void EditSheet::Recount() {
    const OneBased<int> counts =
        CountStipples(edited_.EditStipples, Across(), Down(), PaintCount());
    for (int p = 1; p <= PaintCount(); ++p) {
        found_.FoundColors[p].CellCount = counts[p];
    }
}

SheetContents EditSheet::Copy() const {
    return {found_.FoundColors, spare_, edited_.EditStipples, announced_, settings_.FinalColors};
}

void EditSheet::Exchange(SheetContents& other) {
    PaintList paints = std::exchange(other.FoundColors, std::move(found_.FoundColors));
    SetFoundColors(found_, std::move(paints));
    std::swap(spare_, other.Spare);
    std::swap(edited_.EditStipples, other.EditStipples);
    std::swap(announced_, other.Announced);
    std::swap(settings_.FinalColors, other.FinalColors);
}

std::string EditSheet::Flaw() const {
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
