#pragma once

#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "shell/ui.h"

namespace vendrel {

/// Counts the stipples of each paint into ColorCounts, row by row. Stops at the first stipple that
/// has no paint: what follows it is not counted. Throws OverflowError past 32767 of one paint.
void CountColors(Palette& palette, const StippleGrid& grid);

/// Index of the paint with the smallest of ColorCounts, the lowest of equals; 0 when there is none
/// below 32767.
[[nodiscard]] int GetLowCount(const Palette& palette);

/// Drops one paint: its stipples go to the nearest other paint, and later paints move up.
void RemoveColor(Palette& palette, StippleGrid& grid, int index);

/// Drops the least used paint again and again until `target` (0 or more) are left. An
/// OverflowError leaves grid and palette as after the last paint dropped.
void ReduceColors(Palette& palette, StippleGrid& grid, Ui& screen, int target);

}  // namespace vendrel
