#pragma once

#include <string>
#include <vector>

#include "shell/edited_grid.h"
#include "shell/found_palette.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"

namespace vendrel {

/// A paint whose symbol is another one now.
struct SymbolMove {
    std::string PaintName;
    int Old = 0;  // symbol
    int New = 0;

    bool operator==(const SymbolMove&) const = default;
};

/// What accepting did to the palette.
struct AcceptReport {
    std::vector<SymbolMove> Moves;
    std::vector<std::string> Dropped;  // names of paints that no stipple used
};

/// Makes the editor's copies the kit's own palette and grid: paints without a stipple drop out and
/// the ones after them move up, no area is numbered, CellMarks are fresh. The copies must be
/// without flaw and of the photo's size.
AcceptReport TakeOverCopies(Palette& palette, StippleGrid& grid, FoundPalette& found,
                            EditedGrid& edited);

}  // namespace vendrel
