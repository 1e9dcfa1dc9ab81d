#pragma once

#include "shell/workplace.h"

namespace vendrel {

/// The menu command: puts the stipple drawing onto the work picture, paints it area by area and
/// sets the menus to stage 4. Meanwhile the menus that would start other work are off.
void PaintItNow_Click(Workplace& place);

/// The whole pass over a converted grid with fresh marks: finds the areas, paints them largest
/// first, cleans the brush's corners. Throws OverflowError past 32767 areas or stipples an area.
void PaintAllCells(Workplace& place);

}  // namespace vendrel
