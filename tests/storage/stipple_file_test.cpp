#include "storage/stipple_file.h"

#include <gmock/gmock.h>

#include "support/error.h"
#include "support/temp_folder.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

using testing::HasSubstr;

Grid<StippleCell> ThreeByTwo() {
    Grid<StippleCell> cells(3, 2);
    for (int i = 0; i < 6; ++i) {
        const int x = 1 + i % 3;
        const int y = 1 + i / 3;
        cells(x, y) = {1 + i % 2, x * 8 - 3, y * 8 - 3, 10 * y + x, {}};
    }
    return cells;
}

const PaintList kPaints = {{255, 0, 7, "Acme, fine", "PR1", "Red \xC3\xA9", 99},
                           {0, 128, 0, "", "", "1/2\" Green", 0}};

// The file is also edited by hand and read by kits made earlier: every byte counts.
constexpr const char* kGolden =
    "2,3,2,16\r\n"
    "255,0,7,\"Red \xC3\xA9\",3,\"Acme, fine\",\"PR1\"\r\n"
    "0,128,0,\"1/2' Green\",3,\"\",\"\"\r\n"
    "11,1,5,5\r\n12,2,13,5\r\n13,1,21,5\r\n"
    "21,2,5,13\r\n22,1,13,13\r\n23,2,21,13\r\n";

TEST(StippleFile, IsWrittenRowByRowWithFreshCounts) {
    const Grid<StippleCell> cells = ThreeByTwo();
    EXPECT_EQ(FormatStippleFile({kPaints, cells, 3, 2, 16}), kGolden);
    // An editor's grid may be larger than what it saves.
    EXPECT_THAT(FormatStippleFile({kPaints, cells, 1, 1, 16}), HasSubstr("\"\r\n11,1,5,5\r\n"));
}

TEST(StippleFile, ReadsBackWhatWasWritten) {
    const test::TempFolder folder;
    const auto path = folder / "Saved Stipples/a-Easy.stp";
    WriteStippleFile(path, {kPaints, ThreeByTwo(), 3, 2, 16});
    const std::string text = ReadTextFile(path);
    StippleFileReader reader(text, path);
    EXPECT_EQ(reader.Header().Across, 3);
    EXPECT_EQ(reader.Header().Down, 2);
    EXPECT_EQ(reader.Header().FinalColors, 16);
    const PaintList paints = reader.ReadPalette();
    ASSERT_EQ(paints.Count(), 2);
    PaintColor expected = kPaints[1];
    expected.CellCount = 3;
    EXPECT_EQ(paints[1], expected);
    Grid<StippleCell> cells(3, 2);
    reader.ReadRow(cells, 1, 3);
    reader.ReadRow(cells, 2, 3);
    EXPECT_EQ(cells, ThreeByTwo());
}

TEST(StippleFile, NamesTheLineThatIsBroken) {
    const struct {
        const char* What;
        std::string From;
        std::string To;
        const char* Expected;
    } cases[] = {
        {"no number", "2,3,2,16", "two,3,2,16", "line 1: the number of paints"},
        {"header too short", "2,3,2,16", "2,3,2", "line 1: there are too few fields"},
        {"channel too large", "255,0,7", "256,0,7", "line 2: a paint's red"},
        {"code missing", ",\"PR1\"", "", "line 2: there are too few fields"},
        {"paint beyond the palette", "12,2,13,5", "12,3,13,5", "line 5: a stipple's paint"},
        {"no paint", "12,2,13,5", "12,0,13,5", "line 5: a stipple's paint"},
        {"field lost", "12,2,13,5", "12,2,13", "line 5: there are too few fields"},
        {"field too many", "12,2,13,5", "12,2,13,5,1", "line 5: there are too many fields"},
        {"area out of range", "23,2,21,13", "99999,2,21,13", "line 9: a stipple's area"},
        {"cut short", "23,2,21,13\r\n", "23,2,", "line 9: the file ends"},
    };
    for (const auto& broken : cases) {
        SCOPED_TRACE(broken.What);
        std::string text = kGolden;
        text.replace(text.find(broken.From), broken.From.size(), broken.To);
        const auto read = [&] {
            StippleFileReader reader(text, "x/a-Easy.stp");
            (void)reader.ReadPalette();
            Grid<StippleCell> cells(3, 2);
            reader.ReadRow(cells, 1, 3);
            reader.ReadRow(cells, 2, 3);
        };
        EXPECT_THAT(read, testing::ThrowsMessage<FormatError>(
                              testing::AllOf(HasSubstr("a-Easy.stp"), HasSubstr(broken.Expected))));
    }
}

}  // namespace
}  // namespace vendrel
