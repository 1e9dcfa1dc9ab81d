#pragma once

#include "shell/edited_grid.h"
#include "shell/found_palette.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"

namespace vendrel {

/// Makes the editor's copies the kit's own palette and grid: no area is numbered, CellMarks are
/// fresh. Paints keep their places, used or not, so that symbols mean what they meant. The copies
/// must be without flaw and of the photo's size.
void TakeOverCopies(Palette& palette, StippleGrid& grid, const FoundPalette& found,
                    EditedGrid& edited);

}  // namespace vendrel
