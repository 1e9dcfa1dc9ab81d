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

void FixSmallSpots(const Workplace& place) {
    const WorkState& state = place.State;
    const int size = state.StippleSize;
    const int fewest = TraitsOf(state.Chosen.Level).FewestOwnPixels;
    for (int y = 1; y <= state.Stipples.Down(); ++y) {
        for (int x = 1; x <= state.Stipples.Across(); ++x) {
            const StippleCell& cell = state.Stipples(x, y);
            const Color own = ColorOf(state.PaintColors[cell.ColorIndex]);
            if (CountPixels(place.Frames.WorkFrame.Picture, 1 + (x - 1) * size, 1 + (y - 1) * size,
                            size, own) < fewest) {
                DrawOneStipple(place, cell.X, cell.Y, cell.ColorIndex, Record::Yes,
                               BrushShape::Rounded);
            }
        }
    }
}

}  // namespace vendrel
