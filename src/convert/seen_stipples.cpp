#include "convert/seen_stipples.h"

namespace vendrel {

SeenStipples LookAt(std::span<const Color> stipples, const PaintList& palette) {
    SeenStipples seen{FindDistinctColors(stipples), {}};
    seen.Table = SeenTable(seen.Distinct.Colors, ColorsOf(palette));
    return seen;
}

std::vector<Color> ColorsOf(const PaintList& paints) {
    std::vector<Color> colors;
    colors.reserve(paints.Entries().size());
    for (const PaintColor& paint : paints) {
        colors.push_back(ColorOf(paint));
    }
    return colors;
}

}  // namespace vendrel
