#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "shell/edited_grid.h"
#include "shell/found_palette.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "shell/work_settings.h"
#include "touchup/cell_rect.h"

namespace vendrel {

/// One stipple that an edit repainted. Small, since an evening's undo keeps many thousands.
struct CellChange {
    std::int16_t X = 0;
    std::int16_t Y = 0;
    std::int16_t From = 0;
    std::int16_t To = 0;

    bool operator==(const CellChange&) const = default;
};

[[nodiscard]] inline CellChange ChangeAt(CellPos at, int from, int to) {
    return {static_cast<std::int16_t>(at.X), static_cast<std::int16_t>(at.Y),
            static_cast<std::int16_t>(from), static_cast<std::int16_t>(to)};
}

/// What a load says of itself before it is read: a file that does not fit says more than the
/// copies hold.
struct SheetSizes {
    int Paints = 0;
    int Across = 0;
    int Down = 0;
};

/// Everything of the working copies that a load replaces.
struct SheetContents {
    PaintList FoundColors;
    std::vector<PaintColor> Spare;  // room behind a palette that a load made shorter, last first
    Grid<StippleCell> EditStipples;
    SheetSizes Announced;
    int FinalColors = 0;
};

/// The editor's working copies in the work state: EditStipples and its palette FoundColors, whose
/// CellCounts are kept true while stipples are repainted.
class EditSheet {
  public:
    /// Of the settings a load changes FinalColors.
    EditSheet(FoundPalette& found, EditedGrid& edited, WorkSettings& settings)
        : found_(found), edited_(edited), settings_(settings) {}

    /// Copies the kit's grid and palette.
    void Open(const Palette& palette, const StippleGrid& grid);
    /// Makes FoundColors as long as a load announces, as far as there is room.
    void Announce(const SheetSizes& sizes, int finalColors);
    [[nodiscard]] const SheetSizes& Announced() const { return announced_; }

    [[nodiscard]] int Across() const;
    [[nodiscard]] int Down() const;
    [[nodiscard]] int PaintCount() const { return found_.FoundCount; }
    [[nodiscard]] bool Holds(CellPos pos) const {
        return pos.X >= 1 && pos.Y >= 1 && pos.X <= Across() && pos.Y <= Down();
    }
    [[nodiscard]] bool HoldsPaint(int paint) const { return paint >= 1 && paint <= PaintCount(); }
    /// How many paints a load may bring.
    [[nodiscard]] int PaintRoom() const { return PaintCount() + static_cast<int>(spare_.size()); }
    /// The whole sheet, for edits that may touch anything.
    [[nodiscard]] CellRect Bounds() const { return {1, 1, Across(), Down()}; }

    /// The paint of a stipple; 0 outside the sheet.
    [[nodiscard]] int PaintAt(CellPos pos) const {
        return Holds(pos) ? edited_.EditStipples(pos.X, pos.Y).ColorIndex : 0;
    }
    /// Repaints a stipple of the sheet and moves its count from the old paint to the new one.
    void SetPaint(CellPos pos, int paint);

    [[nodiscard]] const Grid<StippleCell>& Cells() const { return edited_.EditStipples; }
    [[nodiscard]] const PaintList& Paints() const { return found_.FoundColors; }
    /// For a load to read into; what it leaves is to be counted afresh.
    [[nodiscard]] Grid<StippleCell>& Cells() { return edited_.EditStipples; }
    [[nodiscard]] PaintList& Paints() { return found_.FoundColors; }

    /// Counts every paint afresh, for when the copies were replaced.
    void Recount();
    [[nodiscard]] SheetContents Copy() const;
    /// Swaps the copies with `other`.
    void Exchange(SheetContents& other);

    /// An empty text when the copies make a grid and palette that can be kept: every stipple has a
    /// paint of the palette. Else what is wrong, as a clause.
    [[nodiscard]] std::string Flaw() const;

  private:
    void AddCount(int paint, int step);

    FoundPalette& found_;
    EditedGrid& edited_;
    WorkSettings& settings_;
    SheetSizes announced_;
    std::vector<PaintColor> spare_;
};

}  // namespace vendrel
