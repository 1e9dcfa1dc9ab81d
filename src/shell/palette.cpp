#include "shell/palette.h"

#include <utility>

namespace vendrel {

void SetPalette(Palette& palette, PaintList paints) {
    palette.PaintColors = std::move(paints);
    palette.PaintCount = palette.PaintColors.Count();
}

}  // namespace vendrel
