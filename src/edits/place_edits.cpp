#include "edits/place_edits.h"

#include <algorithm>

namespace vendrel {
namespace {

struct PictureShare {
    double X = 0;
    double Y = 0;
};

PictureShare Unturned(PictureShare at, int quartersRight) {
    switch (quartersRight) {
        case 1:
            return {at.Y, 1 - at.X};
        case 2:
            return {1 - at.X, 1 - at.Y};
        case 3:
            return {1 - at.Y, at.X};
        default:
            return at;
    }
}

int CellOf(double share, int cells) {
    return std::clamp(static_cast<int>(share * cells) + 1, 1, cells);
}

}  // namespace

EditLayer EditsOfPart(const EditLayer& layer, const LayerPart& part, int across, int down) {
    EditLayer placed{across, down, layer.Paints, {}, layer.Exchanges, layer.Order};
    Grid<const StippleEdit*> edits(layer.Across, layer.Down);
    for (const StippleEdit& edit : layer.Cells) {
        edits(edit.At.X, edit.At.Y) = &edit;
    }
    for (int y = 1; y <= down && !layer.Cells.empty(); ++y) {
        for (int x = 1; x <= across; ++x) {
            const PictureShare at = Unturned({part.Left + (x - 0.5) / across * part.Width,
                                              part.Top + (y - 0.5) / down * part.Height},
                                             part.QuartersRight);
            if (const StippleEdit* edit =
                    edits(CellOf(at.X, layer.Across), CellOf(at.Y, layer.Down))) {
                placed.Cells.push_back({{x, y}, edit->Wish, edit->Paint});
            }
        }
    }
    return placed;
}

}  // namespace vendrel
