#pragma once

#include "output/sheet_record.h"
#include "shell/palette.h"
#include "shell/symbols.h"
#include "shell/work_settings.h"
#include "support/color.h"
#include "support/surface.h"
#include "support/target.h"

namespace vendrel {

/// How a recorded numbering is put on paper.
struct SheetLook {
    const WorkSettings& Settings;
    const Palette& Paints;
    const Symbols& Shapes;
    const Surface* Ground = nullptr;  // every pixel of it becomes a square; null: white paper
    OneBased<Color> Inks;             // of the symbols, per paint
};

/// Draws a recorded numbering at the difficulty's SheetCellSize and saves it as a bitmap. It is
/// drawn and saved strip by strip, since a whole sheet can take 33 megabytes. Throws Error for a
/// paint without symbol, FileError, OverflowError.
void WriteDrawing(const Target& target, const SheetRecord& record, const SheetLook& look);

}  // namespace vendrel
