#include "plan/painted_regions.h"

#include <algorithm>

#include "support/error.h"

namespace vendrel {
namespace {

int CellAt(int pixel, int stippleSize, int count) {
    return std::clamp((pixel - 1) / stippleSize + 1, 1, count);
}

}  // namespace

PixelGrid PaintPerPixel(const PaintedPixels& pixels, const StippleGrid& grid, int stippleSize,
                        int width, int height) {
    if (pixels.PixelMap.Across() < width || pixels.PixelMap.Down() < height ||
        grid.CellsAcross < 1 || grid.CellsDown < 1) {
        throw Error("The picture is not painted yet. Paint it before its plan is printed.");
    }
    PixelGrid paints(width - 1, height - 1);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int painted = x > 0 && y > 0 ? pixels.PixelMap(x, y).ColorIndex : 0;
            paints(x, y) = painted > 0 ? painted
                                       : grid.Stipples(CellAt(x, stippleSize, grid.CellsAcross),
                                                       CellAt(y, stippleSize, grid.CellsDown))
                                             .ColorIndex;
        }
    }
    return paints;
}

}  // namespace vendrel
