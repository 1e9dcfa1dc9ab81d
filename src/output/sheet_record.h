#pragma once

#include <span>
#include <vector>

#include "support/cell_pos.h"
#include "support/grid.h"

namespace vendrel {

/// What a numbering came to.
struct NumberingCounts {
    int Areas = 0;
    int AreasWithoutSymbol = 0;
    int Symbols = 0;
    int SymbolsAstray = 0;  // stamped into a stipple of another paint
    int BorderDots = 0;     // distinct picture pixels dotted
};

/// A numbering written down to be drawn later: the walk dots a border several times and at random,
/// but paper is filled fastest once and row by row.
class SheetRecord {
  public:
    struct Symbol {
        int Paint = 0;
        CellPos At;  // picture position

        bool operator==(const Symbol&) const = default;
    };

    SheetRecord() = default;
    /// Of a picture of that many pixels.
    SheetRecord(int width, int height) : dots_(width, height) {}

    /// Picture pixel `at` is a border.
    void Dot(CellPos at) { dots_(at.X, at.Y) = now_; }
    /// The symbol of `paint` belongs at picture position `at`.
    void Stamp(int paint, CellPos at) {
        symbols_.push_back({paint, at});
        ++now_;
    }

    /// One row of the dots, and then the symbols, of a record of the same picture that came after
    /// this one.
    void JoinRow(int y, const SheetRecord& later) {
        const auto own = dots_.Row(y);
        const auto others = later.dots_.Row(y);
        for (int x = 0; x <= dots_.Across(); ++x) {
            own[x] = others[x] == 0 ? own[x] : others[x] + now_ - 1;
        }
    }
    void JoinSymbols(const SheetRecord& later) {
        symbols_.insert(symbols_.end(), later.symbols_.begin(), later.symbols_.end());
        now_ += later.now_ - 1;
        Counts.Areas += later.Counts.Areas;
        Counts.AreasWithoutSymbol += later.Counts.AreasWithoutSymbol;
        Counts.Symbols += later.Counts.Symbols;
        Counts.SymbolsAstray += later.Counts.SymbolsAstray;
    }

    [[nodiscard]] int Width() const { return dots_.Across(); }
    [[nodiscard]] int Height() const { return dots_.Down(); }
    /// The symbols in the order in which they were stamped.
    [[nodiscard]] std::span<const Symbol> Symbols() const { return symbols_; }
    /// Per pixel of row y one more than the symbols stamped before its last dot; 0 where none is.
    [[nodiscard]] std::span<const int> Dots(int y) const { return dots_.Row(y).First(Width()); }
    /// Whether a pixel was dotted after the symbol of that index was stamped; false outside.
    [[nodiscard]] bool DottedAfter(std::size_t symbol, CellPos at) const {
        return at.X >= 0 && at.Y >= 0 && at.X < Width() && at.Y < Height() &&
               dots_(at.X, at.Y) > static_cast<int>(symbol) + 1;
    }

    NumberingCounts Counts;

  private:
    Grid<int> dots_;
    std::vector<Symbol> symbols_;
    int now_ = 1;
};

}  // namespace vendrel
