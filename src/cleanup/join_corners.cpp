#include "cleanup/join_corners.h"

#include "paintable/print_areas.h"

namespace vendrel {
namespace {

// From 0; -1 where the brush left nothing.
ValueGrid BrushedPixels(const WorkState& state, const Surface& picture) {
    ValueGrid paints(picture.Width() - 1, picture.Height() - 1);
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            paints(x, y) = x > 0 && y > 0 ? state.PixelMap(x, y).ColorIndex - 1 : -1;
        }
    }
    return paints;
}

ValueGrid StipplePaints(const WorkState& state) {
    ValueGrid paints(state.CellsAcross - 1, state.CellsDown - 1);
    for (int y = 1; y <= state.CellsDown; ++y) {
        for (int x = 1; x <= state.CellsAcross; ++x) {
            paints(x - 1, y - 1) = state.Stipples(x, y).ColorIndex - 1;
        }
    }
    return paints;
}

// The map's last column and row lie behind the picture, where nothing is left to number.
void Record(WorkState& state, Surface& picture) {
    state.PixelMap = Grid<MapPixel>(picture.Width(), picture.Height());
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            const int paint = state.PrintPaints(x, y);
            const Color color = ColorOf(state.PaintColors[paint]);
            picture.Set(x, y, color);
            if (x > 0 && y > 0) {
                state.PixelMap(x, y) = {paint, color};
            }
        }
    }
}

}  // namespace

void JoinCorners(const Workplace& place) {
    WorkState& state = place.State;
    Surface& picture = place.Frames.WorkFrame.Picture;
    const PrintScale scale = CanvasScale(state.Chosen, picture.Width());
    state.PrintPaints = PaintsForPrint(
        {BrushedPixels(state, picture), StipplePaints(state), state.Protected, state.StippleSize},
        LimitsInPixels(state.Chosen.Limits, scale),
        LimitsInPixels(ThirdOf(state.Chosen.Limits), scale));
    for (int& paint : state.PrintPaints.All()) {
        ++paint;
    }
    Record(state, picture);
    place.Screen.RefreshWorkFrame();
}

}  // namespace vendrel
