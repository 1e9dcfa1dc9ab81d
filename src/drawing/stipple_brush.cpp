#include "drawing/stipple_brush.h"

#include <algorithm>
#include <cassert>

namespace vendrel {
namespace {

// Paints runs of pixels around a centre, cut to columns 1..width-1 and rows 1..height-1.
void PaintRuns(const Workplace& place, std::span<const BrushRun> runs, CellPos at, int colorIndex,
               Color color, Record record) {
    Surface& picture = place.Frames.WorkFrame.Picture;
    Grid<MapPixel>& map = place.State.PixelMap;
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

void CaptureStipple(const Workplace& place, CellPos at, int colorIndex, Color color,
                    BrushShape shape, Record record) {
    place.Screen.Yield();
    PaintRuns(place, BrushStamp(place.State.StippleSize, shape), at, colorIndex, color, record);
}

void DrawOneStipple(const Workplace& place, int px, int py, int colorIndex, Record record,
                    BrushShape shape) {
    CaptureStipple(place, {px, py}, colorIndex,
                   ColorOf(PaintAt(place.State.PaintColors, colorIndex)), shape, record);
}

void DrawOneStipple(const Workplace& place, int px, int py, int colorIndex) {
    DrawOneStipple(place, px, py, colorIndex, Record::No, BrushShape::Rounded);
}

void DrawTempStipple(const Workplace& place, int px, int py, int colorIndex) {
    CaptureStipple(place, {px, py}, colorIndex,
                   ColorOf(PaintAt(place.State.FoundColors, colorIndex)), BrushShape::Rounded,
                   Record::No);
}

void DrawColorStipple(const Workplace& place, int x, int y, Color color) {
    if (!place.State.Stipples.Holds(x, y)) {
        return;
    }
    const StippleCell& cell = place.State.Stipples(x, y);
    CaptureStipple(place, {cell.X, cell.Y}, 0, color, BrushShape::Rounded, Record::No);
}

void MoveSpot(const Workplace& place, Directions directions, CellPos cell, int colorIndex) {
    const StippleCell& stipple = place.State.Stipples(cell.X, cell.Y);
    PaintRuns(place, BrushStrokes(place.State.StippleSize, directions), {stipple.X, stipple.Y},
              colorIndex, ColorOf(PaintAt(place.State.PaintColors, colorIndex)), Record::Yes);
}

void ColorPset(const Workplace& place, int px, int py, Color color, int colorIndex) {
    Surface& picture = place.Frames.WorkFrame.Picture;
    if (picture.Get(px, py) == kBlack) {
        picture.Set(px, py, color);
        place.State.PixelMap(px, py) = {colorIndex, color};
    }
}

void EraseToColor(const Workplace& place, Color color) {
    place.Frames.WorkFrame.Picture.Fill(color);
    place.Screen.RefreshWorkFrame();
}

}  // namespace vendrel
