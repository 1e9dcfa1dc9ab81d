#include "drawing/stipple_brush.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "drawing/neighbours.h"
#include "shell/recorder.h"

namespace vendrel {
namespace {

constexpr Color kInk = Rgb(9, 8, 7);

struct PaintBench : test::Bench {
    PaintBench(int width, int height, int size) {
        SizeStipples(State, size);
        Frames.WorkFrame.Picture = Surface(width, height);
        State.PixelMap = Grid<MapPixel>(width, height);
        State.PaintColors.Add({9, 8, 7, "", "", "", 0});
    }
    std::vector<std::string> Picture() const {
        std::vector<std::string> rows;
        for (int y = 0; y < Frames.WorkFrame.Picture.Height(); ++y) {
            std::string& row = rows.emplace_back();
            for (const Color color : Frames.WorkFrame.Picture.Row(y)) {
                row += color == kBlack ? '.' : '#';
            }
        }
        return rows;
    }
};

TEST(StippleBrush, EachSizeHasItsShape) {
    struct Case {
        int size;
        BrushShape shape;
        std::vector<std::string> expected;
    };
    const std::vector<Case> cases = {
        {8,
         BrushShape::Rounded,
         {"..........", "...####...", "..######..", ".########.", ".########.", ".########.",
          ".########.", "..######..", "...####...", ".........."}},
        {8,
         BrushShape::Square,
         {"..........", ".########.", ".########.", ".########.", ".########.", ".########.",
          ".########.", ".########.", ".########.", ".........."}},
        {6,
         BrushShape::Square,
         {"..........", "..........", "...####...", "..######..", "..######..", "..######..",
          "..######..", "...####...", "..........", ".........."}},
        {4,
         BrushShape::Rounded,
         {"..........", "..........", "..........", "....##....", "...####...", "...####...",
          "....##....", "..........", "..........", ".........."}},
        {5, BrushShape::Rounded, std::vector<std::string>(10, "..........")},
    };
    for (const Case& c : cases) {
        PaintBench easel(10, 10, c.size);
        DrawOneStipple(EaselOf(easel.Place), 5, 5, 1, Record::No, c.shape);
        EXPECT_EQ(easel.Picture(), c.expected) << c.size;
        EXPECT_EQ(easel.State.PixelMap(5, 5).ColorIndex, 0);
    }
}

TEST(StippleBrush, LeavesRowAndColumnZeroAndStopsAtTheEdge) {
    PaintBench easel(4, 4, 8);
    CaptureStipple(EaselOf(easel.Place), {2, 2}, 1, kInk, BrushShape::Square, Record::Yes);
    EXPECT_EQ(easel.Picture(), (std::vector<std::string>{"....", ".###", ".###", ".###"}));
    EXPECT_EQ(easel.State.PixelMap(3, 3).ColorIndex, 1);
    EXPECT_EQ(easel.State.PixelMap(4, 3).ColorIndex, 0);
    EXPECT_EQ(easel.State.PixelMap(0, 1).ColorIndex, 0);
}

TEST(StippleBrush, AStrokeIsEveryStampOnTheWay) {
    for (const int size : {8, 6, 4}) {
        for (Directions directions = 0; directions < 256; ++directions) {
            PaintBench stroked(40, 40, size);
            MoveSpot(EaselOf(stroked.Place), directions, {1, 20, 20, 0, {}}, 1);
            PaintBench stamped(40, 40, size);
            for (std::size_t d = 0; d < 8; ++d) {
                for (int i = 0; (directions >> d & 1U) != 0 && i < size; ++i) {
                    CaptureStipple(EaselOf(stamped.Place),
                                   {20 + i * kNeighbours[d].X, 20 + i * kNeighbours[d].Y}, 1, kInk,
                                   BrushShape::Rounded, Record::Yes);
                }
            }
            ASSERT_EQ(stroked.Picture(), stamped.Picture()) << size << ' ' << directions;
            ASSERT_EQ(stroked.State.PixelMap, stamped.State.PixelMap);
        }
    }
}

TEST(StippleBrush, ColorPsetPaintsBlackPixelsOnly) {
    PaintBench easel(3, 3, 4);
    ColorPset(EaselOf(easel.Place), 1, 1, kInk, 1);
    ColorPset(EaselOf(easel.Place), 1, 1, Rgb(1, 1, 1), 2);
    ColorPset(EaselOf(easel.Place), 3, 1, kInk, 1);  // outside: no colour is not black
    EXPECT_EQ(easel.Frames.WorkFrame.Picture.Get(1, 1), kInk);
    EXPECT_EQ(easel.State.PixelMap(1, 1), (MapPixel{1, kInk}));
    EXPECT_EQ(easel.State.PixelMap(3, 1), MapPixel{});
}

}  // namespace
}  // namespace vendrel
