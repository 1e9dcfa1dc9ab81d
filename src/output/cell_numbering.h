#pragma once

#include "output/sheet_record.h"
#include "shell/workplace.h"
#include "support/surface.h"

namespace vendrel {

/// Numbers every connected area of one paint on the painted picture (PixelMap) and records the
/// borders and symbols to be drawn. Recolours `picture`, of the work area's size, in the areas'
/// paints with EdgeColor borders; null: nobody watches. Fills NumberGrid and NumberMarks;
/// NextAreaNumber ends one past the last area. Throws Error for more than 50 paints and
/// OverflowError past 32767 areas.
[[nodiscard]] SheetRecord SetupCellNumbers(Workplace& place, Surface* picture);

/// Throws Error when the palette holds more paints than there are symbols.
void RequireSymbols(const Palette& palette);

}  // namespace vendrel
