#include "cleanup/join_corners.h"

#include "paintable/print_areas.h"
#include "shell/stipple_grid.h"

namespace vendrel {
namespace {

// From 0; -1 where the brush left nothing.
ValueGrid BrushedPixels(const PaintedPixels& painted, const Surface& picture) {
    ValueGrid paints(picture.Width() - 1, picture.Height() - 1);
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            paints(x, y) = x > 0 && y > 0 ? painted.PixelMap(x, y).ColorIndex - 1 : -1;
        }
    }
    return paints;
}

// The map's last column and row lie behind the picture, where nothing is left to number.
void TakeOver(const Easel& easel) {
    PaintedPixels& painted = easel.Pixels;
    Surface& picture = easel.Picture;
    painted.PixelMap = Grid<MapPixel>(picture.Width(), picture.Height());
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            const int paint = painted.PrintPaints(x, y);
            const Color color = ColorOf(easel.Paints.PaintColors[paint]);
            picture.Set(x, y, color);
            if (x > 0 && y > 0) {
                painted.PixelMap(x, y) = {paint, color};
            }
        }
    }
}

}  // namespace

void JoinCorners(const Easel& easel, const StippleGrid& grid) {
    const Settings& chosen = easel.Settings.Chosen;
    const PrintScale scale = CanvasScale(chosen, easel.Picture.Width());
    PaintedPixels& painted = easel.Pixels;
    painted.PrintPaints = PaintsForPrint({BrushedPixels(painted, easel.Picture), PaintsOf(grid),
                                          grid.Protected, easel.Settings.StippleSize},
                                         LimitsInPixels(chosen.Limits, scale),
                                         LimitsInPixels(ThirdOf(chosen.Limits), scale));
    for (int& paint : painted.PrintPaints.All()) {
        ++paint;
    }
    TakeOver(easel);
    easel.Screen.RefreshWorkFrame();
}

}  // namespace vendrel
