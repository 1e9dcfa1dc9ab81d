#include "cleanup/smart_clean.h"

#include <array>
#include <span>
#include <vector>

#include "drawing/stipple_brush.h"

namespace vendrel {
namespace {

// Pixels of one corner, relative to the cell's centre.
struct Corner {
    std::vector<CellPos> ByNeighbours;  // filled by the neighbour rule, in order
    std::vector<CellPos> Own;           // always the cell's own paint
};

// Upper left, upper right, lower left, lower right.
using Corners = std::array<Corner, 4>;

const Corners& CornersOf4() {
    static const Corners kCorners = {
        {{{{-2, -2}}, {}}, {{{1, -2}}, {}}, {{{-2, 1}}, {}}, {{{1, 1}}, {}}}};
    return kCorners;
}

const Corners& CornersOf6() {
    static const Corners kCorners = {{{{{-3, -3}, {-2, -3}, {-3, -2}}, {}},
                                      {{{2, -3}, {1, -3}, {2, -2}}, {}},
                                      {{{-3, 2}, {-3, 1}, {-2, 2}}, {}},
                                      {{{2, 2}, {2, 1}, {1, 2}}, {}}}};
    return kCorners;
}

const Corners& CornersOf8() {
    static const Corners kCorners = {{{{{-4, -4}, {-3, -4}, {-4, -3}}, {{-2, -4}, {-4, -2}}},
                                      {{{2, -4}, {3, -4}, {3, -3}}, {{1, -4}, {3, -2}}},
                                      {{{-4, 3}, {-4, 2}, {-3, 3}}, {{-4, 1}, {-2, 3}}},
                                      {{{3, 3}, {3, 2}, {2, 3}}, {{3, 1}, {1, 3}}}}};
    return kCorners;
}

// Where the upper left corner of a 6-pixel cell is filled by agreeing neighbours, its third pixel
// waits for the pixel beside it as well: the brush may have covered the one and not the other.
constexpr CellPos kThirdPixelOf6 = {-3, -2};
constexpr CellPos kTestedForThirdOf6 = {-2, -2};

struct Flanks {
    int Horizontal;
    int Vertical;
};

Flanks FlanksOf(const Grid<StippleCell>& stipples, CellPos cell, std::size_t corner) {
    const auto [x, y] = cell;
    const int own = stipples(x, y).ColorIndex;
    const bool right = corner % 2 == 1;
    const bool lower = corner >= 2;
    const int horizontal = right ? (x + 1 < stipples.Across() ? stipples(x + 1, y).ColorIndex : own)
                                 : (x - 1 >= 1 ? stipples(x - 1, y).ColorIndex : own);
    const int vertical = lower ? (y + 1 < stipples.Down() ? stipples(x, y + 1).ColorIndex : 0)
                               : (y - 1 > 0 ? stipples(x, y - 1).ColorIndex : 0);
    return {horizontal, vertical};
}

class CornerCleaner {
  public:
    CornerCleaner(const Easel& easel, const StippleGrid& grid, const Corners& corners)
        : easel_(easel), stipples_(grid.Stipples), corners_(corners) {}

    void CleanAll() const {
        for (int y = 1; y <= stipples_.Down(); ++y) {
            for (int x = 1; x <= stipples_.Across(); ++x) {
                for (std::size_t corner = 0; corner < corners_.size(); ++corner) {
                    CleanCorner({x, y}, corner);
                }
            }
        }
    }

  private:
    void CleanCorner(CellPos at, std::size_t corner) const {
        const StippleCell& cell = stipples_(at.X, at.Y);
        const Flanks flanks = FlanksOf(stipples_, at, corner);
        const bool agree = flanks.Horizontal == flanks.Vertical;
        const int fill = agree ? flanks.Horizontal : cell.ColorIndex;
        for (const CellPos& pixel : corners_[corner].ByNeighbours) {
            const bool waits = agree && easel_.Settings.StippleSize == 6 && pixel == kThirdPixelOf6;
            if (!waits || IsBlack(cell, kTestedForThirdOf6)) {
                FillPixel(cell, pixel, fill);
            }
        }
        for (const CellPos& pixel : corners_[corner].Own) {
            FillPixel(cell, pixel, cell.ColorIndex);
        }
    }

    bool IsBlack(const StippleCell& cell, CellPos pixel) const {
        return easel_.Picture.Get(cell.X + pixel.X, cell.Y + pixel.Y) == kBlack;
    }
    void FillPixel(const StippleCell& cell, CellPos pixel, int colorIndex) const {
        const auto& paint = easel_.Paints.PaintColors[colorIndex];
        ColorPset(easel_, cell.X + pixel.X, cell.Y + pixel.Y, ColorOf(paint), colorIndex);
    }

    const Easel& easel_;
    const Grid<StippleCell>& stipples_;
    const Corners& corners_;
};

}  // namespace

void SmartClean8(const Easel& easel, const StippleGrid& grid) {
    CornerCleaner(easel, grid, CornersOf8()).CleanAll();
}

void SmartClean6(const Easel& easel, const StippleGrid& grid) {
    CornerCleaner(easel, grid, CornersOf6()).CleanAll();
}

void SmartClean4(const Easel& easel, const StippleGrid& grid) {
    CornerCleaner(easel, grid, CornersOf4()).CleanAll();
}

}  // namespace vendrel
