#include "paints/paint_fields.h"

#include <cstddef>

#include "support/counter.h"

namespace vendrel {

std::vector<PaintColor> ReadPaints(FieldReader& in) {
    const int count = in.ReadInt("the number of paints", 0, kMaxCounter);
    std::vector<PaintColor> paints(static_cast<std::size_t>(count) + 1);
    for (int i = 1; i <= count; ++i) {
        PaintColor& paint = paints[static_cast<std::size_t>(i)];
        paint.Red = in.ReadInt("a paint's red", 0, 255);
        paint.Green = in.ReadInt("a paint's green", 0, 255);
        paint.Blue = in.ReadInt("a paint's blue", 0, 255);
        paint.Mfg = in.ReadText("a paint's set");
        paint.PaintCode = in.ReadText("a paint's code");
        paint.PaintName = in.ReadText("a paint's name");
    }
    return paints;
}

}  // namespace vendrel
