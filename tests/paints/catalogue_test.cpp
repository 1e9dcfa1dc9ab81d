#include "paints/catalogue.h"

#include <gmock/gmock.h>

#include <set>

#include "paints/foreign_catalogue.h"
#include "paints/paints.h"
#include "shell/paint_id.h"
#include "support/error.h"

namespace vendrel {
namespace {

TEST(Catalogue, ReadsAsManyPaintsAsItCounts) {
    test::Bench bench;
    bench.Files.Write(
        "data/StudioPaint.csv",
        "2\r\n255, 0,7,\"Greens, light\",\"PG7\",\"Leaf\"\r\n1,2,3,Barrel,,Grey\n4,5");
    LoadMasterColors(bench.State, bench.State, bench.Screen, bench.Program);
    ASSERT_EQ(bench.State.MasterCount, 2);
    EXPECT_EQ(bench.State.MasterColors[1],
              (PaintColor{255, 0, 7, "Greens, light", "PG7", "Leaf", 0}));
    EXPECT_EQ(bench.State.MasterColors[2], (PaintColor{1, 2, 3, "Barrel", "", "Grey", 0}));

    bench.Files.Write("data/StudioPaint.csv", "0\r\n");
    LoadMasterColors(bench.State, bench.State, bench.Screen, bench.Program);
    EXPECT_EQ(bench.State.MasterCount, 0);
}

TEST(Catalogue, KeepsWhatItHasWhenTheFileIsBroken) {
    for (const auto& [text, problem] : {std::pair{"2\n1,2,3,a,b,c\n", "line 3"},
                                        {"1\n1,256,3,a,b,c\n", "line 2: a paint's green"},
                                        {"40000\n", "the number of paints"}}) {
        test::Bench bench;
        bench.State.MasterColors.Resize(1);
        bench.Files.Write("Data/studiopaint.csv", text);
        EXPECT_THAT(
            [&] { LoadMasterColors(bench.State, bench.State, bench.Screen, bench.Program); },
            testing::ThrowsMessage<FormatError>(testing::HasSubstr(problem)));
        EXPECT_EQ(bench.State.MasterColors.Count(), 1);
    }
    test::Bench empty;
    EXPECT_THROW(LoadMasterColors(empty.State, empty.State, empty.Screen, empty.Program),
                 FileError);
}

TEST(Catalogue, WarnsOfWhatItDoesNotReadOrCannotTellApart) {
    for (const auto& [text, warning] :
         {std::pair{"1\n1,2,3,a,b,c\n\n4,5,6,a,b,d\n7,8,9,a,b,e\n", "lines 4 to 5 were not read"},
          {"0\n1,2,3,a,b,c", "line 2 was not read"},
          {"2\n1,2,3,Oils,PY43,Ochre\n4,5,6,Oils,PY43,Ochre\n", "\"Oils: Ochre (PY43)\""},
          {"2\n1,2,3,Oils,PY43,Ochre\n1,2,3,Oils,PY42,Ochre\n \n", nullptr},
          {"2\n1,2,3,a,,\n1,2,3,a,,\n", nullptr}}) {
        test::Bench bench;
        bench.Files.Write("Data/studiopaint.csv", text);
        LoadMasterColors(bench.State, bench.State, bench.Screen, bench.Program);
        LoadMasterColors(bench.State, bench.State, bench.Screen, bench.Program);
        ASSERT_EQ(bench.Screen.Messages.size(), warning == nullptr ? 0U : 1U) << text;
        if (warning != nullptr) {
            EXPECT_THAT(bench.Screen.Messages[0].second,
                        testing::AllOf(testing::HasSubstr("studiopaint.csv: "),
                                       testing::HasSubstr(warning)));
        }
    }
}

TEST(Catalogue, ShipsWithPaintsThatCanAllBeToldApart) {
    test::Bench bench(VENDREL_SOURCE_DIR);
    LoadMasterColors(bench.State, bench.State, bench.Screen, bench.Program);
    std::set<PaintId> ids;
    for (const PaintColor& paint : bench.State.MasterColors) {
        ids.insert(IdOf(paint));
    }
    EXPECT_EQ(ids.size(), 507U);
    EXPECT_TRUE(bench.Screen.Messages.empty());
}

TEST(Catalogue, IsJoinedByTheOthersInItsFolder) {
    test::Bench bench;
    bench.Files.Write("Data/studiopaint.csv", "1\n1,2,3,Oils,PY43,Ochre\n");
    bench.Files.Write("Data/catalogues/b.csv", "1\n7,8,9,Inks,,Sepia\n");
    bench.Files.Write("Data/catalogues/A.CSV", "2\n4,5,6,oils,py43,OCHRE\n4,5,6,Inks,,Black\n");
    bench.Files.Write("Data/catalogues/broken.csv", "1\n1,256,3,a,b,c\n");
    LoadMasterColors(bench.State, bench.State, bench.Screen, bench.Program);
    std::string names;
    for (const PaintColor& paint : bench.State.MasterColors) {
        names += paint.PaintName + ";";
    }
    EXPECT_EQ(names, "Ochre;Black;Sepia;");
    ASSERT_EQ(bench.Screen.Messages.size(), 1U);
    EXPECT_THAT(bench.Screen.Messages[0].second, testing::HasSubstr("broken.csv, line 2"));
}

TEST(ForeignCatalogue, TakesTheRowsThatCanBeReadAndNamesTheOthers) {
    struct Case {
        const char* Text;
        const char* Columns;  // null: guessed
        const char* Paints;
        const char* Fault;  // null: none
    };
    for (const Case& each :
         {Case{"Name,Hex\nRed,#C80A14\nBlue,#12\n", nullptr, "Set Red 200,10,20;", "line 3"},
          Case{"Brand;Name;L;a;b\nInks;Lawn;87,735;-86,183;83,179\n", nullptr, "Inks Lawn 0,255,0;",
               nullptr},
          Case{"#0000FF,Sky\n#00FF00,\n", nullptr, "Set Sky 0,0,255;", "line 2: names no paint"},
          Case{"what,r,g,b\nRed,1,2,3\nRed,3,2,1\n", "name=what,red=2,green=3,blue=4",
               "Set Red 1,2,3;", "line 3: lists a paint again"},
          Case{"7,Red,1.5,2,3\n8,Blue,1,2,3\n", "code=1,name=2,red=3,green=4,blue=5",
               "Set Blue 1,2,3;", "line 1: has no color"}}) {
        const CsvTable table = ParseCsv(each.Text, "more.csv");
        const auto read = ReadForeignCatalogue(
            table,
            each.Columns == nullptr ? GuessColumns(table) : ColumnsNamed(each.Columns, table),
            "Set", "more.csv");
        std::string paints;
        for (const PaintColor& paint : read.Paints) {
            paints += paint.Mfg + " " + paint.PaintName + " " + std::to_string(paint.Red) + "," +
                      std::to_string(paint.Green) + "," + std::to_string(paint.Blue) + ";";
        }
        EXPECT_EQ(paints, each.Paints) << each.Text;
        ASSERT_EQ(read.Faults.size(), each.Fault == nullptr ? 0U : 1U) << each.Text;
        if (each.Fault != nullptr) {
            EXPECT_THAT(read.Faults[0], testing::HasSubstr(each.Fault));
        }
    }
}

TEST(Catalogue, MakesASetOfEveryNameAndOneOfEveryNamelessPaint) {
    test::Bench bench;
    for (const char* mfg : {"Oils", "", "Greys", "Oils", "", "oils"}) {
        bench.State.MasterColors.Add({0, 0, 0, mfg, "", "", 0});
    }
    BuildPaintSets(bench.State);
    std::string names;
    for (const PaintSet& set : bench.State.PaintSets) {
        names += set.Name + ";";
    }
    EXPECT_EQ(names, "Oils;;Greys;;oils;");
    EXPECT_EQ(bench.State.PaintSetCount, 5);
}

}  // namespace
}  // namespace vendrel
