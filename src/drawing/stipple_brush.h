#pragma once

#include <span>

#include "drawing/brush.h"
#include "drawing/easel.h"
#include "shell/found_palette.h"
#include "shell/stipple_grid.h"
#include "support/color.h"

namespace vendrel {

/// Whether the brush notes in PixelMap which paint claimed each pixel.
enum class Record { No, Yes };

/// Stamps the stipple brush around pixel (px, py) of the work picture and yields once. Pixel row
/// and column 0 and everything outside the picture stay untouched.
void CaptureStipple(const Easel& easel, CellPos at, int colorIndex, Color color, BrushShape shape,
                    Record record);

/// Stamps the brush around (px, py) in the colour of paint `colorIndex` of PaintColors.
void DrawOneStipple(const Easel& easel, int px, int py, int colorIndex, Record record,
                    BrushShape shape);
/// The same, rounded and not recorded: how conversions and redraws stamp.
void DrawOneStipple(const Easel& easel, int px, int py, int colorIndex);
/// The same with the colour taken from FoundColors.
void DrawTempStipple(const Easel& easel, const FoundPalette& found, int px, int py, int colorIndex);

/// Draws the rounded dot of grid cell (x, y) in any colour, unrecorded, for somebody watching.
void DrawColorStipple(const Easel& easel, const StippleGrid& grid, int x, int y, Color color);

/// Drags the brush from the centre of a stipple toward its neighbours in `directions`, recorded.
void MoveSpot(const Easel& easel, Directions directions, const StippleCell& stipple,
              int colorIndex);

/// Sets one pixel of the work picture and its record, but only while it is still black.
void ColorPset(const Easel& easel, int px, int py, Color color, int colorIndex);

/// Fills the whole work picture with one colour and refreshes it.
void EraseToColor(const Easel& easel, Color color);

}  // namespace vendrel
