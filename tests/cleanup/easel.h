#pragma once

#include <string_view>
#include <vector>

#include "shell/recorder.h"

namespace vendrel::test {

/// A converted grid ready to be painted. Paints 1..9 are the digits of `rows`, 0 is no paint;
/// paint p has the colour (20 p, 10, p).
struct Easel : Bench {
    Easel(int size, const std::vector<std::string_view>& rows)
        : Easel(size, static_cast<int>(rows.front().size()), static_cast<int>(rows.size())) {
        int y = 0;
        for (const std::string_view row : rows) {
            ++y;
            for (int x = 1; x <= State.CellsAcross; ++x) {
                State.Stipples(x, y).ColorIndex = row[static_cast<std::size_t>(x) - 1] - '0';
            }
        }
    }
    Easel(int size, int across, int down) {
        State.StippleSize = size;
        State.HalfStipple = size / 2;
        State.CellsAcross = across;
        State.CellsDown = down;
        State.Stipples = Grid<StippleCell>(across, down);
        State.CellMarks = Grid<CellMark>(across, down);
        for (int y = 1; y <= down; ++y) {
            for (int x = 1; x <= across; ++x) {
                State.Stipples(x, y).X = 1 + (x - 1) * size + size / 2;
                State.Stipples(x, y).Y = 1 + (y - 1) * size + size / 2;
            }
        }
        for (int p = 1; p <= 9; ++p) {
            State.PaintColors.push_back(
                {20 * p, 10, p, "Set", "C" + std::to_string(p), "Paint " + std::to_string(p), 0});
        }
        State.PaintCount = 9;
        State.PictureName = "Lady";
        State.PictureWidth = across * size * 15;
        State.PictureHeight = down * size * 15;
        Frames.WorkFrame.Picture = Surface(across * size, down * size, kWhite);
        Frames.StippleFrame.Picture = Frames.WorkFrame.Picture;
        State.PixelMap = Grid<MapPixel>(across * size, down * size);
    }

    [[nodiscard]] Color Paint(int p) const {
        return ColorOf(State.PaintColors[static_cast<std::size_t>(p)]);
    }
    [[nodiscard]] const Surface& Work() const { return Frames.WorkFrame.Picture; }
};

}  // namespace vendrel::test
