#include "plan/painted_regions.h"

#include <algorithm>

#include "support/error.h"

namespace vendrel {
namespace {

int CellAt(int pixel, int stippleSize, int count) {
    return std::clamp((pixel - 1) / stippleSize + 1, 1, count);
}

}  // namespace

PixelGrid PaintPerPixel(const WorkState& state, int width, int height) {
    if (state.PixelMap.Across() < width || state.PixelMap.Down() < height ||
        state.CellsAcross < 1 || state.CellsDown < 1) {
        throw Error("The picture is not painted yet. Paint it before its plan is printed.");
    }
    if (state.PrintPaints.Across() == width - 1 && state.PrintPaints.Down() == height - 1) {
        return state.PrintPaints;
    }
    PixelGrid paints(width - 1, height - 1);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int painted = x > 0 && y > 0 ? state.PixelMap(x, y).ColorIndex : 0;
            paints(x, y) = painted > 0
                               ? painted
                               : state
                                     .Stipples(CellAt(x, state.StippleSize, state.CellsAcross),
                                               CellAt(y, state.StippleSize, state.CellsDown))
                                     .ColorIndex;
        }
    }
    return paints;
}

}  // namespace vendrel
