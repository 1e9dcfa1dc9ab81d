#include "cleanup/paint_pass.h"

#include <gmock/gmock.h>

#include <random>

#include "cleanup/paint_bench.h"
#include "cleanup/plain_paint_pass.h"
#include "cleanup/small_spots.h"
#include "cleanup/smart_clean.h"
#include "support/error.h"

namespace vendrel {
namespace {

using test::PaintBench;
using enum MenuId;

void FillAtRandom(PaintBench& easel, unsigned seed, int paints) {
    std::mt19937 random(seed);
    for (int y = 1; y <= easel.State.CellsDown; ++y) {
        for (int x = 1; x <= easel.State.CellsAcross; ++x) {
            // Half of the cells copy the one before, so that there are areas and not only dots.
            const int before = easel.State.Stipples(x - 1, y).ColorIndex;
            const bool copies = before > 0 && random() % 2 == 0;
            easel.State.Stipples(x, y).ColorIndex =
                copies ? before : 1 + static_cast<int>(random() % static_cast<unsigned>(paints));
        }
    }
}

TEST(PaintPass, PaintsTheSameAsThePlainestPass) {
    for (unsigned seed = 0; seed < 60; ++seed) {
        const int size = 4 + 2 * static_cast<int>(seed % 3);
        const int across = 1 + static_cast<int>(seed % 13);
        const int down = 1 + static_cast<int>(seed % 7);
        PaintBench fast(size, across, down);
        FillAtRandom(fast, seed, 2 + static_cast<int>(seed % 5));
        fast.Screen.IsWatched = seed % 2 == 0;  // watching never changes the picture
        PaintBench plain(size, across, down);
        plain.State.Stipples = fast.State.Stipples;
        PaintAllCells(fast.Place);
        test::PlainPaintPass(plain.Place);
        ASSERT_EQ(fast.Work(), plain.Work()) << seed;
        ASSERT_EQ(fast.State.PixelMap, plain.State.PixelMap) << seed;
        ASSERT_EQ(fast.State.Stipples, plain.State.Stipples) << seed;
        ASSERT_EQ(fast.State.CellMarks, plain.State.CellMarks) << seed;
        ASSERT_EQ(fast.State.AreaCount, plain.State.AreaCount) << seed;
    }
}

TEST(PaintPass, TheSecondPassOfASessionGivesTheBytesOfTheFirst) {
    PaintBench easel(8, {"112", "132", "444"});
    PaintAllCells(easel.Place);
    const Surface first = easel.Work();
    const Grid<MapPixel> map = easel.State.PixelMap;
    easel.State.CellMarks = Grid<CellMark>(3, 3);
    easel.Frames.WorkFrame.Picture.Fill(Rgb(1, 2, 3));
    easel.State.PixelMap(5, 5).ColorIndex = 7;
    PaintAllCells(easel.Place);
    EXPECT_EQ(easel.Work(), first);
    EXPECT_EQ(easel.State.PixelMap, map);
}

TEST(PaintPass, CommandWrapsThePassInPointerMenusAndCaptions) {
    PaintBench easel(8, {"112", "112", "222"});
    SetupMenuItems(easel.MainMenu, 3);
    easel.MainMenu[PrintAll].Enabled = false;
    PaintItNow_Click(easel.Place);
    EXPECT_TRUE(easel.State.PaintingDone);
    EXPECT_EQ(easel.Screen.LastPointer, Pointer::Normal);
    for (const MenuId on : {FileHeader, Difficulty, SetPaintMax, TemplateMenu, ShowAbout, EndItAll,
                            PrintMenu, PrintAll, ColorPickerSelect}) {
        EXPECT_TRUE(easel.MainMenu[on].Enabled) << easel.MainMenu[on].Name;
    }
    EXPECT_FALSE(easel.MainMenu[PaintItNow].Enabled);
    // The last column and row are entered from within by no area, so paint 2 has three.
    EXPECT_EQ(easel.Screen.Captions,
              (std::vector<std::string>{
                  "Finding Paintable Areas", "Setting Up to Paint", "Painting with Set Paint 1 [1]",
                  "Painting with Set Paint 2 [2]", "Painting with Set Paint 2 [2]",
                  "Painting with Set Paint 2 [2]", "Painting with   [0]",
                  "Cleaning Up, Please Wait...", "Vendrel -Lady"}));
}

TEST(PaintPass, ClosingWhileItPaintsPutsTheMenusBack) {
    PaintBench easel(8, {"112", "112", "222"});
    easel.Screen.StopAfterYields = 3;
    EXPECT_THROW(PaintItNow_Click(easel.Place), Stop);
    EXPECT_TRUE(easel.MainMenu[FileHeader].Enabled);
    EXPECT_EQ(easel.Screen.LastPointer, Pointer::Normal);
    EXPECT_FALSE(easel.State.PaintingDone);
}

TEST(PaintPass, WithTooManyAreasLeavesNothingForASecondOneToMixUp) {
    std::vector<std::string> rows;
    for (int y = 0; y < 182; ++y) {  // no stipple touches one of its paint
        rows.emplace_back();
        for (int x = 0; x < 182; ++x) {
            rows.back() += static_cast<char>('1' + x % 2 + 2 * (y % 2));
        }
    }
    PaintBench easel(4, rows);
    SetupMenuItems(easel.MainMenu, 3);
    for (int again = 0; again < 2; ++again) {
        EXPECT_THAT(
            [&] { PaintItNow_Click(easel.Place); },
            testing::ThrowsMessage<OverflowError>(testing::HasSubstr("fewer final paints")));
        EXPECT_FALSE(easel.MainMenu[PaintItNow].Enabled || easel.MainMenu[PrintMenu].Enabled);
        EXPECT_EQ(easel.State.CellMarks, Grid<CellMark>(182, 182));
        EXPECT_EQ(easel.Work(), easel.Frames.StippleFrame.Picture);
        EXPECT_EQ(easel.Screen.Captions.back(), "Vendrel -Lady");
    }
}

TEST(SmallSpots, RedrawsBelowTheLimitOfEachSize) {
    for (const auto& [size, limit] : {std::pair{8, 44}, {6, 24}, {4, 12}}) {
        for (const int kept : {limit, limit - 1}) {
            PaintBench easel(size, {"11", "11"});
            Surface& work = easel.Frames.WorkFrame.Picture;
            work.Fill(Rgb(1, 1, 1));
            for (int i = 0; i < kept; ++i) {
                work.Set(1 + i % size, 1 + i / size, easel.Paint(1));
            }
            const Surface before = work;
            FixSmallSpots(EaselOf(easel.Place), easel.State);
            const int middle = size - 1;  // on the last row of the block, always in the brush
            EXPECT_EQ(work.Get(size / 2, middle) == easel.Paint(1),
                      before.Get(size / 2, middle) == easel.Paint(1) || kept < limit)
                << size << ' ' << kept;
            EXPECT_EQ(work.Get(1, size), kept < limit ? Rgb(1, 1, 1) : before.Get(1, size));
        }
    }
}

// The colours of cell (2, 2)'s upper left and lower right corner pixel after a clean-up.
std::pair<Color, Color> CornersOfMiddleCell(PaintBench& easel) {
    easel.Frames.WorkFrame.Picture.Fill(kBlack);
    const int size = easel.State.StippleSize;
    (size == 8   ? SmartClean8
     : size == 6 ? SmartClean6
                 : SmartClean4)(EaselOf(easel.Place), easel.State);
    return {easel.Work().Get(1 + size, 1 + size), easel.Work().Get(2 * size, 2 * size)};
}

TEST(SmartClean, FlankingNeighboursThatAgreeTakeTheCorner) {
    for (const int size : {8, 6, 4}) {
        PaintBench agree(size, {"9399", "3123", "9393", "9999"});
        EXPECT_EQ(CornersOfMiddleCell(agree), std::pair(agree.Paint(3), agree.Paint(1))) << size;
        PaintBench edge(size,
                        {"999", "913", "939"});  // right and lower neighbour in the last column
        EXPECT_EQ(CornersOfMiddleCell(edge).second, edge.Paint(1)) << size;
    }
}

TEST(SmartClean, LeavesPaintedPixelsAndGivesExtraPixelsToTheCell) {
    PaintBench easel(8, {"9399", "3199", "9999", "9999"});
    Surface& work = easel.Frames.WorkFrame.Picture;
    work.Fill(kBlack);
    work.Set(9, 9, kWhite);
    SmartClean8(EaselOf(easel.Place), easel.State);
    EXPECT_EQ(work.Get(9, 9), kWhite);
    EXPECT_EQ(work.Get(10, 9), easel.Paint(3));
    EXPECT_EQ(work.Get(11, 9), easel.Paint(1));
    EXPECT_EQ(easel.State.PixelMap(10, 9), (MapPixel{3, easel.Paint(3)}));
}

TEST(SmartClean, ThirdCornerPixelOfSixWaitsForThePixelBesideIt) {
    for (const bool agree : {true, false}) {
        for (const bool beside : {true, false}) {
            PaintBench easel(6, {"9399", agree ? "3199" : "5199", "9999", "9999"});
            Surface& work = easel.Frames.WorkFrame.Picture;
            work.Fill(kBlack);
            work.Set(10 - 2, 10 - 2, beside ? kBlack : kWhite);
            SmartClean6(EaselOf(easel.Place), easel.State);
            EXPECT_EQ(work.Get(10 - 3, 10 - 2), !agree   ? easel.Paint(1)
                                                : beside ? easel.Paint(3)
                                                         : kBlack);
        }
    }
}

}  // namespace
}  // namespace vendrel
