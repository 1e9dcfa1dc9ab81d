#include "storage/load_stipples.h"

#include <gmock/gmock.h>

#include "cleanup/paint_bench.h"
#include "support/error.h"

namespace vendrel {
namespace {

using testing::HasSubstr;

// A photo of 16 x 8 pixels: two stipples of Easy side by side.
class LoadStipples : public testing::Test {
  protected:
    LoadStipples() {
        SetupMenuItems(bench_.MainMenu, 2);
        bench_.MainMenu[MenuId::NextBestColors].Enabled = false;
    }
    void Save(const std::string& text) { bench_.Files.Write("Saved Stipples/Lady-Easy.stp", text); }

    const std::string paints_ =
        "1,2,3,\"Red\",1,\"Acme\",\"A1\"\r\n4,5,6,\"Blue\",1,\"Acme\",\"A2\"\r\n";
    test::PaintBench bench_{8, {"11"}};
};

TEST_F(LoadStipples, TakesUpPaletteGridAndMenus) {
    Save("2,2,1,32\r\n" + paints_ + "7,2,5,5\r\n8,1,13,5\r\n");
    bench_.State.CellMarks(1, 1).Visited = true;
    SetGrid(bench_.State, {});
    LoadStipples_Click(bench_.Place);
    const WorkState& state = bench_.State;
    EXPECT_EQ(state.PaintCount, 2);
    EXPECT_EQ(state.PaintColors.Count(), 2);
    EXPECT_EQ(state.PaintColors[2].PaintCode, "A2");
    EXPECT_EQ(state.FoundColors, state.PaintColors);
    EXPECT_EQ(state.FoundCount, 2);
    EXPECT_EQ(state.FinalColors, 32);
    EXPECT_EQ(state.CellsAcross, 2);
    EXPECT_EQ(state.CellsDown, 1);
    EXPECT_EQ(state.Stipples(1, 1), (StippleCell{2, 5, 5, 7}));
    EXPECT_EQ(state.CellMarks, Grid<CellMark>(2, 1));
    EXPECT_TRUE(bench_.MainMenu[MenuId::PaintItNow].Enabled);
    EXPECT_TRUE(bench_.MainMenu[MenuId::NextBestColors].Enabled);
    EXPECT_EQ(bench_.State.Chosen.FinalPaints, 32);
    EXPECT_TRUE(bench_.Screen.Messages.empty());
    const Surface& picture = bench_.Frames.WorkFrame.Picture;
    EXPECT_EQ(picture.Get(5, 5), Rgb(4, 5, 6));
    EXPECT_EQ(picture.Get(13, 5), Rgb(1, 2, 3));
    EXPECT_EQ(picture.Get(0, 0), kBlack);
    EXPECT_EQ(bench_.Frames.StippleFrame.Picture, picture);
}

TEST_F(LoadStipples, KeepsThePhotosSizeAndSaysSo) {
    // Saved from a photo three stipples across: the first two lines fill the grid.
    Save("2,3,1,16\r\n" + paints_ + "1,2,5,5\r\n2,1,13,5\r\n3,1,21,5\r\n");
    LoadStipples_Click(bench_.Place);
    EXPECT_EQ(bench_.State.Stipples(2, 1).AreaNumber, 2);
    ASSERT_EQ(bench_.Screen.Messages.size(), 1U);
    EXPECT_THAT(bench_.Screen.Messages[0].second,
                testing::AllOf(HasSubstr("3 x 1"), HasSubstr("2 x 1"), HasSubstr("Lady-Easy.stp")));
}

TEST_F(LoadStipples, BrokenFileChangesNothing) {
    for (const char* cells : {"1,2,5,5\r\n", "1,2,5,5\r\n2,3,13,5\r\n", "1,2,5\r\n1,1,13,5\r\n"}) {
        Save("2,2,1,16\r\n" + paints_ + cells);
        EXPECT_THROW(LoadStipples_Click(bench_.Place), FormatError) << cells;
    }
    std::filesystem::remove(bench_.Files / "Saved Stipples/Lady-Easy.stp");
    EXPECT_THROW(LoadStipples_Click(bench_.Place), FileError);
    EXPECT_EQ(bench_.State.PaintColors[1].PaintName, "Paint 1");
    EXPECT_EQ(bench_.State.FinalColors, 50);
    EXPECT_EQ(test::GridOf(bench_.State.Stipples), std::vector<std::string>{"11"});
    EXPECT_EQ(bench_.Frames.WorkFrame.Picture, Surface(16, 8, kWhite));
    EXPECT_FALSE(bench_.MainMenu[MenuId::PaintItNow].Enabled);
}

TEST_F(LoadStipples, IsOfferedWhileAFileIsThere) {
    CheckSavedStipples(bench_.Place);
    EXPECT_FALSE(bench_.MainMenu[MenuId::LoadStipples].Enabled);
    Save("");
    CheckSavedStipples(bench_.Place);
    EXPECT_TRUE(bench_.MainMenu[MenuId::LoadStipples].Enabled);
    bench_.State.Chosen.Level = Difficulty::Difficult;
    CheckSavedStipples(bench_.Place);
    EXPECT_FALSE(bench_.MainMenu[MenuId::LoadStipples].Enabled);
}

}  // namespace
}  // namespace vendrel
