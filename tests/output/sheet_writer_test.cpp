#include "output/sheet_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cleanup/paint_pass.h"
#include "convert/bitmap_reader.h"
#include "output/painting_writer.h"
#include "output/symbol_set.h"
#include "shell/recorder.h"
#include "support/error.h"

namespace vendrel {
namespace {

// Three by three stipples, the middle one of another paint, painted as the program paints.
class PaintedKit : public testing::Test {
  protected:
    PaintedKit() : bench_(VENDREL_SOURCE_DIR) {}

    void Paint(int stippleSize, MenuId difficulty) {
        WorkState& state = bench_.State;
        state.PictureName = "lady";
        state.StippleSize = stippleSize;
        state.HalfStipple = stippleSize / 2;
        state.CellsAcross = state.CellsDown = 3;
        state.Stipples = Grid<StippleCell>(3, 3);
        state.CellMarks = Grid<CellMark>(3, 3);
        for (int y = 1; y <= 3; ++y) {
            for (int x = 1; x <= 3; ++x) {
                state.Stipples(x, y) = {x == 2 && y == 2 ? 2 : 1,
                                        1 + (x - 1) * stippleSize + state.HalfStipple,
                                        1 + (y - 1) * stippleSize + state.HalfStipple, 0};
            }
        }
        state.PaintColors = {{}, {200, 0, 0, "Acme", "", "Red", 0}, {0, 0, 200, "", "", "", 0}};
        state.PaintCount = 2;
        const int side = 3 * stippleSize;
        state.PictureWidth = state.PictureHeight = side * 15;
        state.PixelMap = Grid<MapPixel>(side, side);
        bench_.Frames.WorkFrame.Picture = Surface(side, side);
        bench_.MainMenu[MenuId::EasySet].Checked = false;
        bench_.MainMenu[difficulty].Checked = true;
        SetupBMPSymbols(bench_.Place);
        PaintAllCells(bench_.Place);
    }

    test::Bench bench_;
};

TEST_F(PaintedKit, SheetIsNamedAndScaledByDifficulty) {
    const struct {
        int StippleSize;
        MenuId Difficulty;
        const char* Name;
        int Side;
    } cases[] = {{8, MenuId::EasySet, "lady Easy PBS.BMP", 48},
                 {6, MenuId::MediumSet, "lady Medium PBS.BMP", 54},
                 {4, MenuId::HardSet, "lady Difficult PBS.BMP", 48}};
    for (const auto& one : cases) {
        Paint(one.StippleSize, one.Difficulty);
        const SavedSheet saved = PrintAll_Click(bench_.Place);
        bench_.MainMenu[one.Difficulty].Checked = false;
        EXPECT_EQ(saved.File, bench_.Files / "Results" / one.Name);
        EXPECT_EQ(ReadBitmap(saved.File).Width(), one.Side);
        EXPECT_EQ(ReadBitmap(saved.File).Height(), one.Side);
    }
}

TEST_F(PaintedKit, SheetShowsDotsAndSymbolsOnWhite) {
    Paint(8, MenuId::EasySet);
    const SavedSheet saved = WriteSheet(bench_.Place);
    const Surface sheet = ReadBitmap(saved.File);
    int dots = 0;
    for (int y = 0; y < sheet.Height(); ++y) {
        for (int x = 0; x < sheet.Width(); ++x) {
            const Color color = sheet.Get(x, y);
            ASSERT_TRUE(color == kWhite || color == kBlack || color == Rgb(125, 125, 125));
            ASSERT_TRUE(color != kBlack || (x % 2 == 0 && y % 2 == 0)) << x << ' ' << y;
            dots += color == kBlack ? 1 : 0;
        }
    }
    EXPECT_LE(dots, saved.Counts.BorderDots);  // symbols may cover some
    EXPECT_GT(dots, 20);
    // Symbol 2 stands in the middle stipple, around (13 - 2, 13 - 2) times 2.
    for (const GlyphPoint p : std::span(bench_.State.SymbolGlyphs[2].Points).subspan(1)) {
        const Color color = sheet.Get(22 + p.X, 22 + p.Y);
        EXPECT_TRUE(color == Rgb(125, 125, 125)) << p.X << ' ' << p.Y;
    }
}

TEST_F(PaintedKit, PaintingComesOutTheSameBeforeAndAfterTheSheet) {
    Paint(8, MenuId::EasySet);
    SetupMenuItems(bench_.MainMenu, 4);
    const auto file = PrintWorkform_Click(bench_.Place);
    EXPECT_EQ(file, bench_.Files / "Results/lady Easy Painting.BMP");
    const std::string before = bench_.Files.Read("Results/lady Easy Painting.BMP");
    PrintAll_Click(bench_.Place);
    PrintWorkform_Click(bench_.Place);
    EXPECT_EQ(bench_.Files.Read("Results/lady Easy Painting.BMP"), before);
    EXPECT_EQ(ReadBitmap(file), bench_.Frames.WorkFrame.Picture);
    EXPECT_TRUE(bench_.State.SheetDC.Empty());
    EXPECT_TRUE(bench_.MainMenu[MenuId::PrintMenu].Enabled);
    EXPECT_EQ(bench_.Screen.LastPointer, Pointer::Normal);
    EXPECT_EQ(bench_.Screen.Captions.back(), "Saving File, Please Wait....");
}

TEST_F(PaintedKit, RefusedSheetLeavesPictureAndFiles) {
    EXPECT_THROW(WriteSheet(bench_.Place), Error);  // nothing painted
    Paint(8, MenuId::EasySet);
    const Surface painting = bench_.Frames.WorkFrame.Picture;
    bench_.State.PaintCount = 51;
    bench_.State.PaintColors.resize(52);
    EXPECT_THROW(PrintAll_Click(bench_.Place), Error);
    bench_.State.PaintCount = 2;
    bench_.State.SymbolGlyphs.clear();  // fails at the first stamp
    EXPECT_THROW(PrintAll_Click(bench_.Place), Error);
    EXPECT_EQ(bench_.Frames.WorkFrame.Picture, painting);
    EXPECT_FALSE(bench_.Program.Exists("Results"));
    EXPECT_EQ(bench_.Screen.LastPointer, Pointer::Normal);
}

TEST_F(PaintedKit, ReferenceShowsTheSheetsDotsAndSymbolsOnTheEnlargedPainting) {
    Paint(8, MenuId::EasySet);
    const Surface painting = bench_.Frames.WorkFrame.Picture;
    const SavedSheets saved = WriteSheets(bench_.Place, {.Sheet = true, .Reference = true});
    EXPECT_EQ(saved.Reference, bench_.Files / "Results/lady Easy Symbol Reference.BMP");
    const Surface sheet = ReadBitmap(saved.Sheet);
    const Surface reference = ReadBitmap(saved.Reference);
    ASSERT_EQ(reference.Width(), sheet.Width());
    ASSERT_EQ(reference.Height(), sheet.Height());
    for (int y = 0; y < sheet.Height(); ++y) {
        for (int x = 0; x < sheet.Width(); ++x) {
            const Color drawn = sheet.Get(x, y);
            const Color expected = drawn == kBlack   ? kBlack
                                   : drawn == kWhite ? painting.Get(x / 2, y / 2)
                                                     : kWhite;  // both paints are dark
            ASSERT_EQ(reference.Get(x, y), expected) << x << ' ' << y;
        }
    }
    EXPECT_EQ(bench_.Frames.WorkFrame.Picture, painting);
}

TEST_F(PaintedKit, SavesTheSameBytesInAnyOrderAndCompany) {
    Paint(8, MenuId::EasySet);
    const auto read = [this](const std::string& kind) {
        return bench_.Files.Read("Results/lady Easy " + kind + ".BMP");
    };
    WriteSheets(bench_.Place, {.Sheet = true, .Reference = true});
    const std::string sheet = read("PBS");
    const std::string reference = read("Symbol Reference");
    std::filesystem::remove_all(bench_.Files / "Results");
    SaveReference_Click(bench_.Place);
    EXPECT_FALSE(bench_.Program.Exists("Results/lady Easy PBS.BMP"));
    PrintWorkform_Click(bench_.Place);
    PrintAll_Click(bench_.Place);
    EXPECT_EQ(read("PBS"), sheet);
    EXPECT_EQ(read("Symbol Reference"), reference);
}

TEST_F(PaintedKit, AResultsFolderThatCannotBeWrittenIsNamed) {
    Paint(8, MenuId::EasySet);
    bench_.Files.Write("Results", "in the way");
    try {
        SaveReference_Click(bench_.Place);
        FAIL() << "written";
    } catch (const FileError& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("lady Easy Symbol Reference.BMP"));
    }
    EXPECT_EQ(bench_.Files.Read("Results"), "in the way");
    EXPECT_EQ(bench_.Screen.LastPointer, Pointer::Normal);
}

}  // namespace
}  // namespace vendrel
