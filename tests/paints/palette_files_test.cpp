#include "paints/palette_files.h"

#include <gmock/gmock.h>

#include "paints/next_best.h"
#include "support/error.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::ThrowsMessage;

PaintColor Paint(int red, int green, int blue, const char* set, const char* name) {
    return {red, green, blue, set, "", name, 0};
}

using Paints = PaintList;

TEST(PaletteFiles, ReadsPalettesOfOtherPrograms) {
    const test::TempFolder folder;
    const std::tuple<const char*, const char*, Paints> cases[] = {
        {"a.gpl",
         "GIMP Palette\r\nName: Sea \"deep\"\nColumns: 4\n# 1 2 3 no colour\n"
         "  0  20\t 40\tInk\n\n255 255 255\n",
         {Paint(0, 20, 40, "Sea 'deep'", "Ink"), Paint(255, 255, 255, "Sea 'deep'", "Unnamed")}},
        {"plain.csv",
         "1,2,3,\"Red, \"\"hot\"\"\"\n4,5,6",
         {Paint(1, 2, 3, "plain", "Red, 'hot'"), Paint(4, 5, 6, "plain", "Unnamed")}},
        {"heading.CSV", "Name;B;G;R\nSky;9;8;7\n", {Paint(7, 8, 9, "heading", "Sky")}},
        {"ours.csv",
         " 2\r\n7,8,9,\"Set\",\"PB29\",\"Sky, deep\"\r\n1,2,3,\"Set\",\"\",\"Ink\"\r\n",
         {{7, 8, 9, "Set", "PB29", "Sky, deep", 0}, Paint(1, 2, 3, "Set", "Ink")}},
        {"colons.gpl",
         "GIMP Palette\n1 2 3 Mix: one\n4 5 6 Two\n",
         {Paint(1, 2, 3, "colons", "Mix: one"), Paint(4, 5, 6, "colons", "Two")}},
    };
    for (const auto& [file, text, expected] : cases) {
        EXPECT_EQ(ReadPaletteFile(folder.Write(file, text)).Paints, expected) << file;
    }
}

TEST(PaletteFiles, NamesTheLineThatIsBroken) {
    const test::TempFolder folder;
    for (const auto& [file, text, says] : {std::tuple{"a.gpl", "no palette", "line 1"},
                                           {"a.gpl", "GIMP Palette\n1 2 300 x\n", "line 2"},
                                           {"a.csv", "1,2,3,x\n1,2\n", "line 2"},
                                           {"a.csv", " 2\n1,2,3,a,b,c\n1,2,x,a,b,c\n", "line 3"},
                                           {"a.csv", " 0\n", "no colors"},
                                           {"a.csv", "name,red,green\nx,1,2\n", "line 1"},
                                           {"a.csv", "red,green,blue,name\n", "no colors"},
                                           {"a.txt", "", ".gpl or a .csv"}}) {
        const auto path = folder.Write(file, text);
        EXPECT_THAT([&] { (void)ReadPaletteFile(path); },
                    ThrowsMessage<Error>(AllOf(HasSubstr(file), HasSubstr(says))));
    }
}

TEST(PaletteFiles, WritesWhatItReads) {
    const Paints paints = {Paint(7, 80, 255, "Set", "Sky"), {1, 2, 3, "Set", "PB29", "Ultra", 0}};
    const std::string text = GplText("Mine", paints);
    EXPECT_EQ(text,
              "GIMP Palette\nName: Mine\nColumns: 8\n#\n  7  80 255\tSet: Sky\n"
              "  1   2   3\tSet: Ultra [PB29]\n");
}

TEST(PaletteFiles, GplGivesSetNameAndCodeBackWhateverIsInThem) {
    Paints paints;
    for (const char* set : {"Set", "", "Warm: soft", "::", "a:b:"}) {
        for (const char* name : {"Ultra", "Sky: deep", ": x", "Ochre [dark]", "a [", "[[]]", ""}) {
            for (const char* code : {"", "PB29", "A [1]", "[[x", "]", "[1] [2]"}) {
                paints.Add({1, 2, 3, set, code, name, 0});
            }
        }
    }
    const Paints read = ParseGplPalette(GplText("Mine", paints), "x.gpl");
    ASSERT_EQ(read.Count(), paints.Count());
    for (int i = 1; i <= paints.Count(); ++i) {
        EXPECT_EQ(read[i], paints[i]) << GplText("Mine", {paints[i]});
    }
}

TEST(NextBest, NearestFirstWithoutTheColoursInUse) {
    const Paints catalogue = {Paint(10, 0, 0, "a", "far"), Paint(4, 0, 0, "a", "near"),
                              Paint(0, 4, 0, "a", "as near"), Paint(1, 0, 0, "b", "in use"),
                              Paint(3, 0, 0, "a", "near")};  // the first of a name stands
    const Paints palette = {Paint(0, 0, 0, "a", "wanted"), Paint(1, 0, 0, "a", "same colour")};
    const auto best = FindNextBest(palette[1], catalogue, palette, 2);
    ASSERT_EQ(best.size(), 2U);
    EXPECT_EQ(best[0].Paint.PaintName, "near");
    EXPECT_EQ(best[1].Paint.PaintName, "as near");
    EXPECT_DOUBLE_EQ(best[0].Difference, 4);
}

TEST(SamePaint, GoesByNamesAndByColorOnlyWhereThereAreNone) {
    const PaintColor ochre{9, 8, 7, "Oils", "PY43", "Ochre", 3};
    for (const auto& [other, same] :
         {std::pair{PaintColor{1, 1, 1, "Oils", "PY43", "Ochre", 0}, true},
          {{1, 1, 1, "OILS", "py43", "ochre", 0}, true},
          {{9, 8, 7, "Oils", "PY43", "Ochre, pale", 3}, false},
          {{9, 8, 7, "Inks", "PY43", "Ochre", 3}, false}}) {
        EXPECT_EQ(SamePaint(ochre, other), same) << other.PaintName << other.Mfg;
    }
    EXPECT_TRUE(
        SamePaint(Paint(1, 2, 3, "\u00c9mail", "\u0416"), Paint(4, 5, 6, "\u00e9MAIL", "\u0436")));
    EXPECT_FALSE(SamePaint(Paint(1, 2, 3, "Oils", ""), Paint(1, 2, 4, "Oils", "")));
    EXPECT_TRUE(SamePaint(Paint(1, 2, 3, "Oils", ""), Paint(1, 2, 3, "Oils", "")));
}

}  // namespace
}  // namespace vendrel
