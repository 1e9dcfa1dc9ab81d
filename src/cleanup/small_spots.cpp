#include "cleanup/small_spots.h"

#include "drawing/stipple_brush.h"

namespace vendrel {
namespace {

int CountPixels(const Surface& picture, int left, int top, int size, Color color) {
    int count = 0;
    for (int y = top; y < top + size; ++y) {
        for (int x = left; x < left + size; ++x) {
            count += picture.Get(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

}  // namespace

void FixSmallSpots(const Easel& easel, const StippleGrid& grid) {
    const int size = easel.Settings.StippleSize;
    const int fewest = TraitsOf(easel.Settings.Chosen.Level).FewestOwnPixels;
    for (int y = 1; y <= grid.Stipples.Down(); ++y) {
        for (int x = 1; x <= grid.Stipples.Across(); ++x) {
            const StippleCell& cell = grid.Stipples(x, y);
            const Color own = ColorOf(easel.Paints.PaintColors[cell.ColorIndex]);
            if (CountPixels(easel.Picture, 1 + (x - 1) * size, 1 + (y - 1) * size, size, own) <
                fewest) {
                DrawOneStipple(easel, cell.X, cell.Y, cell.ColorIndex, Record::Yes,
                               BrushShape::Rounded);
            }
        }
    }
}

}  // namespace vendrel
