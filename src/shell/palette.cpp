#include "shell/palette.h"

#include <algorithm>
#include <utility>

#include "shell/paint_id.h"

namespace vendrel {

void SetPalette(Palette& palette, PaintList paints) {
    palette.PaintColors = std::move(paints);
    palette.PaintCount = palette.PaintColors.Count();
}

bool SamePaints(const PaintList& a, const PaintList& b) {
    return std::ranges::equal(a, b, [](const PaintColor& one, const PaintColor& other) {
        return IdOf(one) == IdOf(other) && ColorOf(one) == ColorOf(other);
    });
}

}  // namespace vendrel
