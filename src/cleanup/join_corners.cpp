#include "cleanup/join_corners.h"

#include <algorithm>

#include "paintable/print_areas.h"
#include "shell/stipple_grid.h"

namespace vendrel {
namespace {

// From 0; -1 where the brush left nothing.
ValueGrid BrushedPixels(const PaintedPixels& painted, const Surface& picture) {
    ValueGrid paints(picture.Width() - 1, picture.Height() - 1);
    std::ranges::fill(paints.All(), -1);
    for (int y = 1; y < picture.Height(); ++y) {
        const RowView<const MapPixel> from = painted.PixelMap.Row(y);
        const RowView<int> to = paints.Row(y);
        for (int x = 1; x < picture.Width(); ++x) {
            to[x] = from[x].ColorIndex - 1;
        }
    }
    return paints;
}

// Paints count from 1 again. The map's last column and row lie behind the picture, where nothing is
// left to number.
void TakeOver(const Easel& easel) {
    PaintedPixels& painted = easel.Pixels;
    Surface& picture = easel.Picture;
    OneBased<Color> colors(easel.Paints.PaintCount);
    for (int paint = 1; paint <= colors.Count(); ++paint) {
        colors[paint] = ColorOf(easel.Paints.PaintColors[paint]);
    }
    std::ranges::fill(painted.PixelMap.All(), MapPixel{});
    for (int y = 0; y < picture.Height(); ++y) {
        const RowView<int> paints = painted.PrintPaints.Row(y);
        const RowView<Color> pixels = picture.Row(y);
        const RowView<MapPixel> map = painted.PixelMap.Row(y);
        for (int x = 0; x < picture.Width(); ++x) {
            ++paints[x];
            pixels[x] = colors[paints[x]];
        }
        for (int x = 1; y > 0 && x < picture.Width(); ++x) {
            map[x] = {paints[x], pixels[x]};
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
    TakeOver(easel);
    easel.Screen.RefreshWorkFrame();
}

}  // namespace vendrel
