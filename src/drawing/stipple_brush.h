#pragma once

#include <span>

#include "drawing/brush.h"
#include "shell/workplace.h"
#include "support/color.h"

namespace vendrel {

/// Whether the brush notes in PixelMap which paint claimed each pixel.
enum class Record { No, Yes };

/// Stamps the stipple brush around pixel (px, py) of the work picture and yields once. Pixel row
/// and column 0 and everything outside the picture stay untouched.
void CaptureStipple(const Workplace& place, CellPos at, int colorIndex, Color color,
                    BrushShape shape, Record record);

/// Stamps the brush around (px, py) in the colour of paint `colorIndex` of PaintColors.
void DrawOneStipple(const Workplace& place, int px, int py, int colorIndex, Record record,
                    BrushShape shape);
/// The same, rounded and not recorded: how conversions and redraws stamp.
void DrawOneStipple(const Workplace& place, int px, int py, int colorIndex);
/// The same with the colour taken from FoundColors.
void DrawTempStipple(const Workplace& place, int px, int py, int colorIndex);

/// Draws the rounded dot of grid cell (x, y) in any colour, unrecorded, for somebody watching.
void DrawColorStipple(const Workplace& place, int x, int y, Color color);

/// Drags the brush from the centre of cell (x, y) toward its neighbours in `directions`, recorded.
void MoveSpot(const Workplace& place, Directions directions, CellPos cell, int colorIndex);

/// Sets one pixel of the work picture and its record, but only while it is still black.
void ColorPset(const Workplace& place, int px, int py, Color color, int colorIndex);

/// Fills the whole work picture with one colour and refreshes it.
void EraseToColor(const Workplace& place, Color color);

}  // namespace vendrel
