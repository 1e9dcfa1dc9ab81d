#pragma once

#include <string>
#include <vector>

#include "paints/paints.h"
#include "shell/recorder.h"

namespace vendrel::test {

/// A converted grid ready to be painted. Paints 1..9 are the digits of `rows`, 0 is no paint;
/// paint p has the colour (20 p, 10, p). Symbols are the program's own.
struct PaintBench : Bench {
    PaintBench(int size, const std::vector<std::string>& rows, int paints = 9)
        : Bench(VENDREL_SOURCE_DIR) {
        SizeStipples(State, size);
        State.PictureName = "Lady";
        Lay(rows, paints);
    }
    PaintBench(int size, int across, int down)
        : PaintBench(size, std::vector(static_cast<unsigned>(down),
                                       std::string(static_cast<unsigned>(across), '0'))) {}

    void Lay(const std::vector<std::string>& rows, int paints) {
        UseGrid(State, rows);
        const int size = State.StippleSize;
        for (int y = 1; y <= State.CellsDown; ++y) {
            for (int x = 1; x <= State.CellsAcross; ++x) {
                State.Stipples(x, y).X = 1 + (x - 1) * size + size / 2;
                State.Stipples(x, y).Y = 1 + (y - 1) * size + size / 2;
            }
        }
        PaintList palette;
        for (int p = 1; p <= paints; ++p) {
            const std::string number = std::to_string(p);
            palette.Add({20 * p, 10, p, "Set", "C" + number, "Paint " + number, 0});
        }
        SetPalette(State, std::move(palette));
        const int width = State.CellsAcross * size;
        const int height = State.CellsDown * size;
        State.PictureWidth = width * 15;
        State.PictureHeight = height * 15;
        Frames.WorkFrame.Picture = Surface(width, height, kWhite);
        Frames.StippleFrame.Picture = Frames.WorkFrame.Picture;
        State.PixelMap = Grid<MapPixel>(width, height);
    }

    [[nodiscard]] Color Paint(int p) const { return ColorOf(State.PaintColors[p]); }
    [[nodiscard]] const Surface& Work() const { return Frames.WorkFrame.Picture; }
};

}  // namespace vendrel::test
