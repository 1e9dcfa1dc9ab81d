#include "storage/load_stipples.h"

#include <gmock/gmock.h>

#include "cleanup/paint_bench.h"
#include "convert/bitmap_writer.h"
#include "convert/stipple_conversion.h"
#include "support/error.h"
#include "support/size_text.h"

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

TEST_F(LoadStipples, GivesThePhotoTheShapeOfAGridMadeElsewhere) {
    const std::filesystem::path photo = bench_.Files / "Pictures/Lady.bmp";
    bench_.State.PicturePath = photo.string();
    WriteBitmap(photo, Surface(64, 32, kWhite));
    const struct {
        const char* Shape;
        const char* Cells;
        int Across, Down;
    } cases[] = {{"3,1", "1,2,5,5\r\n2,1,13,5\r\n3,1,21,5\r\n", 3, 1},
                 {"1,2", "1,2,5,5\r\n2,1,5,13\r\n", 1, 2},
                 {"1,1", "1,2,5,5\r\n9,9,more lines are none of it\r\n", 1, 1}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.Shape);
        Save("2," + std::string(c.Shape) + ",16\r\n" + paints_ + c.Cells);
        LoadStipples_Click(bench_.Place);
        const WorkState& state = bench_.State;
        EXPECT_EQ(std::pair(state.CellsAcross, state.CellsDown), std::pair(c.Across, c.Down));
        EXPECT_EQ(state.Stipples(1, 1).AreaNumber, 1);
        EXPECT_EQ(std::pair(state.PictureWidth, state.PictureHeight),
                  std::pair(c.Across * 120, c.Down * 120));
        for (const Surface* picture :
             {&bench_.Frames.WorkFrame.Picture, &bench_.Frames.CaptureFrame.Picture}) {
            EXPECT_EQ(std::pair(picture->Width(), picture->Height()),
                      std::pair(c.Across * 8, c.Down * 8));
        }
        EXPECT_EQ(state.PixelMap.Across(), c.Across * 8);
        EXPECT_THAT(bench_.Screen.Messages.back().second,
                    testing::AllOf(HasSubstr(SizeText(c.Across, c.Down)), HasSubstr("Lady-Easy")));
    }
    bench_.State.Chosen.Sample = Sampling::Pixel;
    (void)ChangeToStipples_Click(bench_.Place);
    EXPECT_EQ(std::pair(bench_.State.CellsAcross, bench_.State.CellsDown), std::pair(120, 60))
        << "converted afresh, the photo has its own shape";
}

TEST_F(LoadStipples, BrokenFileChangesNothing) {
    const std::string_view cases[][3] = {
        {"2,1", "1,2,5,5\r\n", "line 4: the file ends here with 1 of the 2 stipples (2 x 1)"},
        {"9,7", "1,2,5,5\r\n1,2,5,5\r\n\r\n", "line 5: the file ends here with 2 of the 63"},
        {"9,7", "", "line 3: the file ends here with 0 of the 63"},
        {"32767,32767", "1,2,5,5\r\n", "1 of the 1073676289 stipples"},
        {"0,7", "1,2,5,5\r\n", "line 1: the file announces no stipples"},
        {"2,1", "1,2,5,5\r\n2,3,13,5\r\n", "line 5"},
        {"2,1", "1,2,5\r\n1,1,13,5\r\n", "line 4"}};
    for (const auto& [shape, cells, message] : cases) {
        Save("2," + std::string(shape) + ",16\r\n" + paints_ + std::string(cells));
        EXPECT_THAT([&] { LoadStipples_Click(bench_.Place); },
                    testing::ThrowsMessage<FormatError>(HasSubstr(message)));
    }
    std::string row;
    for (int i = 0; i < 300; ++i) {
        row += "1,2,5,5\r\n";
    }
    Save("2,300,1,16\r\n" + paints_ + row);
    EXPECT_THROW(LoadStipples_Click(bench_.Place), FormatError) << "wider than any sheet";
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
