#include "output/sheet_writer.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <random>

#include "cleanup/paint_bench.h"
#include "cleanup/paint_pass.h"
#include "convert/bitmap_reader.h"
#include "output/cell_numbering.h"
#include "output/painting_writer.h"
#include "output/symbol_set.h"
#include "support/error.h"

namespace vendrel {
namespace {

Surface DrawSheet(test::PaintBench& kit) {
    NumberedPainting(kit.Place).WriteSheet(kit.Files / "sheet.BMP");
    return ReadBitmap(kit.Files / "sheet.BMP");
}

// Three by three stipples, the middle one of another paint, painted as the program paints.
struct PaintedKit : test::PaintBench {
    explicit PaintedKit(int stippleSize = 8) : PaintBench(stippleSize, {"111", "121", "111"}) {
        SetupBMPSymbols(State, Program);
        PaintAllCells(Place);
    }

    [[nodiscard]] Surface Sheet() { return DrawSheet(*this); }
};

TEST(Sheet, ShowsTheSymbolInTheMiddleOfItsStipple) {
    PaintedKit kit;
    const Surface sheet = kit.Sheet();  // around (13 - 2, 13 - 2) times 2
    for (const GlyphPoint p : InkOf(kit.State, 2)) {
        EXPECT_EQ(sheet.Get(22 + p.X, 22 + p.Y), Rgb(125, 125, 125)) << p.X << ' ' << p.Y;
    }
}

// The record drawn in its order: dots, the symbol they come before, more dots.
Surface DrawInOrder(const SheetRecord& record, int scale, const WorkState& state) {
    std::vector<std::array<int, 4>> steps;  // when, paint or 0 for a dot, where
    for (int y = 0; y < record.Height(); ++y) {
        for (int x = 0; const int when : record.Dots(y)) {
            steps.push_back({when, 0, x++, y});
        }
    }
    for (int when = 0; const auto& [paint, at] : record.Symbols()) {
        steps.push_back({++when, paint, at.X, at.Y});
    }
    std::ranges::sort(steps);
    Surface sheet(scale * record.Width(), scale * record.Height(), kWhite);
    for (const auto& [when, paint, x, y] : steps) {
        if (paint == 0 && when != 0) {
            sheet.Set(scale * x, scale * y, kBlack);
        }
        for (const GlyphPoint& p : InkOf(state, paint)) {  // a dot has none
            sheet.Set(scale * x + p.X, scale * y + p.Y, state.SymbolColor);
        }
    }
    return sheet;
}

// A sheet of several strips, against one drawn whole.
TEST(Sheet, IsWhatTheWalkDrawsInItsOrder) {
    for (const auto& [stippleSize, scale] : {std::pair{8, 2}, {6, 3}, {4, 4}}) {
        std::mt19937 random(static_cast<unsigned>(stippleSize));
        std::vector<std::string> rows(400 / static_cast<unsigned>(stippleSize),
                                      std::string(90, '1'));
        for (std::string& row : rows) {
            std::ranges::generate(row, [&random] { return "111223"[random() % 6]; });
        }
        test::PaintBench kit(stippleSize, rows);
        SetupBMPSymbols(kit.State, kit.Program);
        PaintAllCells(kit.Place);
        const Surface drawn = DrawSheet(kit);
        ASSERT_EQ(drawn.Width(), scale * kit.Work().Width());
        EXPECT_EQ(drawn, DrawInOrder(SetupCellNumbers(kit.Place, nullptr), scale, kit.State));
    }
}

TEST(Sheet, RefusedOneLeavesPictureAndFiles) {
    test::Bench bare;
    EXPECT_THROW(NumberedPainting{bare.Place}, Error);  // nothing painted
    PaintedKit kit;
    const Surface painting = kit.Frames.WorkFrame.Picture;
    const PaintList paints = kit.State.PaintColors;
    SetPalette(kit.State, PaintList(51));
    EXPECT_THROW(kit.Sheet(), Error);
    SetPalette(kit.State, paints);
    kit.State.SymbolGlyphs.Clear();  // fails at the first stamp
    kit.Screen.IsWatched = true;
    EXPECT_THROW(kit.Sheet(), Error);
    EXPECT_EQ(kit.Frames.WorkFrame.Picture, painting);
    EXPECT_FALSE(kit.Program.Exists("sheet.BMP"));
}

TEST(Sheet, IsRefusedWhereSymbolsStandBeyondSixteenBits) {
    for (const unsigned rows : {2047U, 2060U}) {
        std::vector<std::string> grid(rows, "1111");
        grid.back() = "2222";  // its symbol stands in the last row
        test::PaintBench kit(4, grid);
        SetupBMPSymbols(kit.State, kit.Program);
        PaintAllCells(kit.Place);
        if (rows == 2060) {
            EXPECT_THROW(DrawSheet(kit), OverflowError);
            EXPECT_FALSE(kit.Program.Exists("sheet.BMP"));
        } else {
            EXPECT_EQ(DrawSheet(kit).Height(), 4 * 4 * 2047);
        }
    }
}

TEST(Reference, ShowsTheSheetsDotsAndSymbolsOnTheEnlargedPainting) {
    PaintedKit kit;
    const Surface painting = kit.Frames.WorkFrame.Picture;
    const NumberedPainting numbered(kit.Place);
    numbered.WriteSheet(kit.Files / "sheet.BMP");
    numbered.WriteReference(kit.Files / "reference.BMP");
    const Surface sheet = ReadBitmap(kit.Files / "sheet.BMP");
    const Surface reference = ReadBitmap(kit.Files / "reference.BMP");
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
    EXPECT_EQ(kit.Frames.WorkFrame.Picture, painting);
}

TEST(Sheets, AreTheSameBytesWhetherSomebodyWatchesOrNot) {
    PaintedKit kit;
    const Surface painting = kit.Work();
    std::vector<std::string> files;
    for (const bool watched : {false, true}) {
        kit.Screen.IsWatched = watched;  // and sees the numbering
        const NumberedPainting numbered(kit.Place);
        numbered.WriteReference(kit.Files / "reference.BMP");
        numbered.WriteSheet(kit.Files / "sheet.BMP");
        WritePainting(kit.Screen, kit.Frames.WorkFrame.Picture, kit.Files / "painting.BMP");
        files.push_back(kit.Files.Read("reference.BMP") + kit.Files.Read("sheet.BMP"));
        EXPECT_EQ(ReadBitmap(kit.Files / "painting.BMP"), painting);
    }
    EXPECT_EQ(files[0], files[1]);
    EXPECT_EQ(kit.Screen.Captions.back(), "Saving File, Please Wait....");
}

}  // namespace
}  // namespace vendrel
