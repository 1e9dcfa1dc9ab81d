#pragma once

#include "shell/catalogue.h"
#include "shell/edit_past.h"
#include "shell/edited_grid.h"
#include "shell/found_palette.h"
#include "shell/given_warnings.h"
#include "shell/kit_edits.h"
#include "shell/loaded_photo.h"
#include "shell/paint_choice.h"
#include "shell/paint_pass.h"
#include "shell/painted_pixels.h"
#include "shell/palette.h"
#include "shell/sheet_numbers.h"
#include "shell/stipple_grid.h"
#include "shell/symbols.h"
#include "shell/unsaved_work.h"
#include "shell/work_settings.h"

namespace vendrel {

/// All that the program knows from start-up to exit: the sum of its parts, and nothing of its own.
/// What needs few of them takes those, and a whole state serves for each.
struct WorkState : Catalogue,
                   PaintChoice,
                   WorkSettings,
                   Palette,
                   FoundPalette,
                   LoadedPhoto,
                   StippleGrid,
                   EditedGrid,
                   KitEdits,
                   EditPast,
                   UnsavedWork,
                   PaintedPixels,
                   PaintPass,
                   SheetNumbers,
                   Symbols,
                   GivenWarnings {};

}  // namespace vendrel
