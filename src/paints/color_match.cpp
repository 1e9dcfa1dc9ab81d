#include "paints/color_match.h"

#include "paints/nearest_paint.h"

namespace vendrel {

void GetRgb(Color color, int& r, int& g, int& b) {
    r = RedOf(color);
    g = GreenOf(color);
    b = BlueOf(color);
}

void ColorMatch(const Palette& palette, int& R, int& G, int& B, int& Index, int SkipIndex) {
    const int nearest = FindNearest(palette.PaintColors, {R, G, B}, SkipIndex);
    if (nearest == 0) {
        return;
    }
    const PaintColor& paint = palette.PaintColors[nearest];
    R = paint.Red;
    G = paint.Green;
    B = paint.Blue;
    Index = nearest;
}

}  // namespace vendrel
