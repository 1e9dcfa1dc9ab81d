#include "drawing/stipple_brush.h"

#include <algorithm>
#include <cassert>

namespace vendrel {
namespace {

// Paints runs of pixels around a centre, cut to columns 1..width-1 and rows 1..height-1.
void PaintRuns(const Easel& easel, std::span<const BrushRun> runs, CellPos at, int colorIndex,
               Color color, Record record) {
    Surface& picture = easel.Picture;
    Grid<MapPixel>& map = easel.Pixels.PixelMap;
    assert(record == Record::No ||
           (map.Across() >= picture.Width() - 1 && map.Down() >= picture.Height() - 1));
    for (const BrushRun& run : runs) {
        const int y = at.Y + run.Row;
        const int first = std::max(at.X + run.First, 1);
        const int last = std::min(at.X + run.Last, picture.Width() - 1);
        if (y < 1 || y >= picture.Height() || first > last) {
            continue;
        }
        Color* const pixels = picture.Row(y).data();
        std::fill(pixels + first, pixels + last + 1, color);
        if (record == Record::Yes) {
            MapPixel* const marks = map.Row(y).data();
            for (int x = first; x <= last; ++x) {
                marks[x].ColorIndex = colorIndex;
            }
        }
    }
}

const PaintColor& PaintAt(const PaintList& paints, int index) {
    return paints[index];
}

}  // namespace

void CaptureStipple(const Easel& easel, CellPos at, int colorIndex, Color color, BrushShape shape,
                    Record record) {
    easel.Screen.Yield();
    PaintRuns(easel, BrushStamp(easel.Settings.StippleSize, shape), at, colorIndex, color, record);
}

void DrawOneStipple(const Easel& easel, int px, int py, int colorIndex, Record record,
                    BrushShape shape) {
    CaptureStipple(easel, {px, py}, colorIndex,
                   ColorOf(PaintAt(easel.Paints.PaintColors, colorIndex)), shape, record);
}

void DrawOneStipple(const Easel& easel, int px, int py, int colorIndex) {
    DrawOneStipple(easel, px, py, colorIndex, Record::No, BrushShape::Rounded);
}

void DrawTempStipple(const Easel& easel, const FoundPalette& found, int px, int py,
                     int colorIndex) {
    CaptureStipple(easel, {px, py}, colorIndex, ColorOf(PaintAt(found.FoundColors, colorIndex)),
                   BrushShape::Rounded, Record::No);
}

void DrawColorStipple(const Easel& easel, const StippleGrid& grid, int x, int y, Color color) {
    if (!grid.Stipples.Holds(x, y)) {
        return;
    }
    const StippleCell& cell = grid.Stipples(x, y);
    CaptureStipple(easel, {cell.X, cell.Y}, 0, color, BrushShape::Rounded, Record::No);
}

void MoveSpot(const Easel& easel, Directions directions, const StippleCell& stipple,
              int colorIndex) {
    PaintRuns(easel, BrushStrokes(easel.Settings.StippleSize, directions), {stipple.X, stipple.Y},
              colorIndex, ColorOf(PaintAt(easel.Paints.PaintColors, colorIndex)), Record::Yes);
}

void ColorPset(const Easel& easel, int px, int py, Color color, int colorIndex) {
    Surface& picture = easel.Picture;
    if (picture.Get(px, py) == kBlack) {
        picture.Set(px, py, color);
        easel.Pixels.PixelMap(px, py) = {colorIndex, color};
    }
}

void EraseToColor(const Easel& easel, Color color) {
    easel.Picture.Fill(color);
    easel.Screen.RefreshWorkFrame();
}

}  // namespace vendrel
