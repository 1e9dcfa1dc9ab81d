#include "paints/template_file.h"

#include <gmock/gmock.h>

#include "paints/paints.h"
#include "paints/restore.h"
#include "support/error.h"

namespace vendrel {
namespace {

const PaintList kSea = {{200, 30, 45, "Oils, fine", "PR1", "Bär red", 0},
                        {0, 0, 255, "", "", "", 0}};
constexpr const char* kSeaText =
    " 2\r\n200,30,45,\"Oils, fine\",\"PR1\",\"Bär red\"\r\n0,0,255,\"\",\"\",\"\"\r\n";

TEST(TemplateFile, WritesWhatItReads) {
    test::TempFolder files;
    WriteTemplate(files / "templates/Sea.csv", kSea);
    EXPECT_EQ(files.Read("templates/Sea.csv"), kSeaText);
    EXPECT_EQ(ReadTemplate(files / "templates/Sea.csv"), kSea);
    WriteTemplate(files / "none.csv", {});
    EXPECT_EQ(files.Read("none.csv"), " 0\r\n");
}

TEST(TemplateFile, RefusesADoubleQuoteAndKeepsTheOldFile) {
    test::TempFolder files;
    files.Write("a.csv", "old");
    const PaintList paints = {test::Paint(1, 2, 3, "6\" brush")};
    EXPECT_THROW(WriteTemplate(files / "a.csv", paints), Error);
    EXPECT_EQ(files.Read("a.csv"), "old");
}

TEST(TemplateFile, BecomesThePaletteAndLowersTheFinalPaints) {
    for (const auto& [paints, wanted, finalColors] :
         {std::tuple{12, 32, 12}, {33, 32, 32}, {60, 0, 0}}) {
        test::Bench bench;
        bench.State.Chosen.FinalPaints = wanted;
        WriteTemplate(TemplatePath(bench.Program, "T"), PaintList(paints));
        EXPECT_TRUE(LoadTemplateColors(bench.Place, "T"));
        EXPECT_EQ(bench.State.PaintCount, paints);
        EXPECT_EQ(bench.State.FinalColors, finalColors) << paints;
        EXPECT_TRUE(bench.Screen.Messages.empty());
    }
}

TEST(TemplateFile, WithoutPaintsSaysSoAndEmptiesThePalette) {
    test::Bench bench;
    SetPalette(bench.State, {test::Paint(1, 1, 1)});
    bench.Files.Write("templates/T.csv", " 0\r\n");
    EXPECT_FALSE(LoadTemplateColors(bench.Place, "T"));
    EXPECT_EQ(bench.State.PaintCount, 0);
    EXPECT_EQ(bench.State.FinalColors, 50);
    EXPECT_THAT(bench.Screen.Messages,
                testing::ElementsAre(testing::Pair(
                    "Unable To Continue", "The Selected Template Has NO Paints Assigned!")));
}

TEST(TemplateFile, LeavesNoOtherPaletteInForceWhenItCannotBeRead) {
    test::Bench bench;
    const PaintList old = {test::Paint(1, 1, 1, "old")};
    SetPalette(bench.State, old);
    bench.Files.Write("templates/T.csv", " 2\r\n1,2,3,\"a\",\"b\",\"c\"\r\n1,2,999,\"a\"");
    EXPECT_THAT(
        [&] { (void)LoadTemplateColors(bench.Place, "T"); },
        testing::ThrowsMessage<FormatError>(testing::HasSubstr("T.csv, line 3: a paint's blue")));
    EXPECT_EQ(test::NamesOf(bench.State), "");
    SetPalette(bench.State, old);
    EXPECT_THROW((void)LoadTemplateColors(bench.Place, "Missing"), FileError);
    EXPECT_EQ(test::NamesOf(bench.State), "");
}

TEST(TemplateFile, ListsTheFolderWithoutEndings) {
    test::Bench bench;
    EXPECT_TRUE(ListTemplates(bench.Program).empty());
    EXPECT_TRUE(bench.Program.Exists("templates"));
    for (const char* file : {"Sea.csv", "Autumn day.csv", "notes.text", "aéé.é", "csv",
                             "Sea.csv.123.part", ".vendrel-1-2.part"}) {
        bench.Files.Write(std::string("templates/") + file, "");
    }
    bench.Files.Write("templates/Folder.csv/x.csv", "");
    EXPECT_THAT(ListTemplates(bench.Program),
                testing::ElementsAre("Autumn day", "Sea", "a", "notes."));
}

}  // namespace
}  // namespace vendrel
