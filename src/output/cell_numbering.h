#pragma once

#include "shell/workplace.h"
#include "support/cell_pos.h"
#include "support/surface.h"

namespace vendrel {

/// What a numbering came to.
struct NumberingCounts {
    int Areas = 0;
    int AreasWithoutSymbol = 0;
    int Symbols = 0;
    int SymbolsAstray = 0;  // stamped into a stipple of another paint
    int BorderDots = 0;     // distinct picture pixels dotted
};

/// What the numbering draws, in the order it draws: a dot or a symbol may cover an earlier one.
class NumberSink {
  public:
    NumberSink() = default;
    NumberSink(const NumberSink&) = delete;
    NumberSink& operator=(const NumberSink&) = delete;
    virtual ~NumberSink() = default;

    /// Picture pixel `at` is a border.
    virtual void Dot(CellPos at) = 0;
    /// The symbol of `paint` belongs at picture position `at`.
    virtual void Stamp(int paint, CellPos at) = 0;
};

/// Numbers every connected area of one paint on the painted picture (PixelMap), recolours
/// `picture` in the areas' paints with EdgeColor borders, and, when it is the work area's picture,
/// draws borders and symbols: onto SheetDC, or into `sink`. Fills NumberGrid and NumberMarks;
/// NextAreaNumber ends one past the last area. Throws Error for more than 50 paints and
/// OverflowError past 32767 areas.
NumberingCounts SetupCellNumbers(const Workplace& place, Surface& picture);
NumberingCounts SetupCellNumbers(const Workplace& place, Surface& picture, NumberSink& sink);

/// The same drawn into `sink` with the work area's picture left as it is.
NumberingCounts NumberUnseen(const Workplace& place, NumberSink& sink);

/// Throws Error when the palette holds more paints than there are symbols.
void RequireSymbols(const WorkState& state);

}  // namespace vendrel
