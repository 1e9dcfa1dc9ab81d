#include <gmock/gmock.h>

#include <thread>

#include "shelf/labels.h"
#include "shelf/paint_import.h"
#include "shelf/shelf_file.h"
#include "support/csv_table.h"
#include "support/error.h"
#include "support/temp_folder.h"

namespace vendrel {
namespace {

const PaintList kCatalogue = {
    {200, 10, 20, "Oils", "PR108", "Cadmium Red", 0},
    {240, 240, 20, "Oils", "PY3", "Hansa", 0},
    {201, 12, 21, "Craft", "77", "Cadmium Red", 0},
    {20, 30, 200, "Craft", "78", "Blue Sky", 0},
    {1, 1, 1, "Craft", "", "Soot", 0},
};

std::string ErrorOf(const auto& action) {
    try {
        action();
    } catch (const Error& error) {
        return error.what();
    }
    return "none";
}

TEST(ShelfFile, ReadsWhatSpreadsheetsWriteAndKeepsWhatItDoesNotKnow) {
    const Shelf shelf = ParseShelf(
        "sep=;\r\nBought;Label;NAME;Set;ML left;red;green;blue;Painted\r\n"
        "2019;a2;\"Red; deep\";Oils;12,50;1;2;3;\"3.2 a%3Bb; 1 c\"\r\n\r\n;;Soot;Craft;;;;;\r\n",
        "mypaints.csv");
    ASSERT_EQ(shelf.Paints.size(), 2U);
    const ShelfPaint& red = shelf.Paints[0];
    EXPECT_EQ(red.Name, "Red; deep");
    EXPECT_EQ(red.MlLeft, 12.5);
    EXPECT_EQ(red.Label, "A2");
    EXPECT_EQ(red.Measured, Rgb(1, 2, 3));
    EXPECT_THAT(red.Taken, testing::ElementsAre(TakenPaint{"a;b", 3.2}, TakenPaint{"c", 1}));
    EXPECT_EQ(red.Others, std::vector<std::string>{"2019"});
    const std::string text = FormatShelf(shelf);
    EXPECT_EQ(ParseShelf(text.substr(3), "mypaints.csv"), shelf);
    EXPECT_THAT(text, testing::HasSubstr(";12,5;"));
}

TEST(ShelfFile, RefusesWithTheLineWhatCouldBeMisread) {
    for (const auto& [text, problem] :
         {std::pair{"set,code\na,b\n", "line 1: no column is called \"name\""},
          {"name,ml left\nRed,12,5\n", "line 2: has 3 fields for 2 columns"},
          {"name,ml left,pots,note\nRed,12,5\n", "line 2: has 3 fields for 4 columns"},
          {"name,ml left\nRed,\"1,234\"\n", "line 2: has \"1,234\" for ml left"},
          {"name;ml left\nRed;1.234\n", "has \"1.234\" for ml left"},
          {"name,ml left\nRed,-1\n", "has \"-1\" for ml left"},
          {"name,pots\nRed,1.5\n", "Write a whole number"},
          {"name,red,green,blue\nRed,1,,3\n", "Give all three or none"},
          {"name,label\nRed,A0\nBlue,a0\n", "line 3: has the label A0, which line 2 has too"},
          {"name,label\nRed,A-\n", "Choose one to three letters or digits"},
          {"name\nRed\n\nRED\n", "line 4: lists the paint of line 2 again"},
          {"name\n\"Red\nBlue\n", "line 2: a quote is opened and never closed"},
          {"name,color\nRed,#12345G\n", "Write it as in #C08060"}}) {
        EXPECT_THAT(ErrorOf([&text] { (void)ParseShelf(text, "Data/mypaints.csv"); }),
                    testing::AllOf(testing::StartsWith("Data/mypaints.csv, line"),
                                   testing::HasSubstr(problem)))
            << text;
    }
}

TEST(ShelfFile, LosesNothingWhenManyChangeItAtOnce) {
    const test::TempFolder files;
    const ProgramFolder folder(files.Path());
    std::vector<std::thread> painters;
    for (int painter = 0; painter < 4; ++painter) {
        painters.emplace_back([&folder, painter] {
            for (int i = 0; i < 5; ++i) {
                const std::string name = std::to_string(painter) + "-" + std::to_string(i);
                ChangeShelf(folder, [&](Shelf& shelf) {
                    AddToShelf(shelf, {1, 2, 3, "Own", "", name, 0});
                });
            }
        });
    }
    for (std::thread& painter : painters) {
        painter.join();
    }
    EXPECT_EQ(ReadShelf(folder).Paints.size(), 20U);  // read: no two labels are alike
}

TEST(Shelf, MergesWhatTwoProgramsChangedPaintByPaint) {
    Shelf before;
    for (const PaintColor& paint : kCatalogue) {
        AddToShelf(before, paint);
    }
    Shelf now = before;
    Shelf after = before;
    now.Paints[0].MlLeft = 5;
    now.Paints[3].Note = "kept";
    RemoveFromShelf(now, IdOf(now.Paints[1]));
    AddToShelf(now, {9, 9, 9, "Own", "", "Theirs", 0});
    after.Paints[0].Note = "half dry";
    RemoveFromShelf(after, IdOf(after.Paints[2]));
    AddToShelf(after, {8, 8, 8, "Own", "", "Mine", 0});

    const Shelf merged = MergeShelves(now, before, after);
    std::vector<std::string> names;
    for (const ShelfPaint& paint : merged.Paints) {
        names.push_back(paint.Set + " " + paint.Name);
    }
    EXPECT_THAT(names, testing::ElementsAre("Oils Cadmium Red", "Craft Blue Sky", "Craft Soot",
                                            "Own Theirs", "Own Mine"));
    EXPECT_EQ(merged.Paints[0].MlLeft, 5);
    EXPECT_EQ(merged.Paints[0].Note, "half dry");
    EXPECT_EQ(merged.Paints[1].Note, "kept");
    EXPECT_NE(merged.Paints[3].Label, merged.Paints[4].Label);
}

TEST(Shelf, KnowsWhatBecameOfAPaintInTheCatalogue) {
    for (const auto& [paint, what] :
         {std::pair{ShelfPaint{"OILS", "cadmium red", "PR108"}, InCatalogue::Known},
          {ShelfPaint{"Oils", "Red, Cadmium", "PR108"}, InCatalogue::Renamed},
          {ShelfPaint{"Craft", "Blue Sky", "79"}, InCatalogue::Renamed},
          {ShelfPaint{"Oils", "Madder", "NR9"}, InCatalogue::Lost},
          {ShelfPaint{"My mixes", "Skin", ""}, InCatalogue::Own}}) {
        EXPECT_EQ(StandingOf(paint, kCatalogue).What, what) << paint.Name;
    }
}

TEST(Labels, AreFreeShortAndNeverAlike) {
    std::vector<std::string> labels = NextFreeLabels({"A", "0"}, 300);
    EXPECT_EQ(labels.front(), "C");
    for (std::size_t i = 0; i < labels.size(); ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            ASSERT_FALSE(AreLabelsAlike(labels[i], labels[j])) << labels[i] << " " << labels[j];
        }
    }
    for (const auto& [label, problem] : {std::pair{"c-", "cannot be a label"},
                                         {"ABCD", "cannot be a label"},
                                         {"bu", "is another paint's"},
                                         {"8U", "looks too much like BU"},
                                         {"B", "none"}}) {
        EXPECT_THAT(ErrorOf([&label] {
                        (void)RequireFreeLabel(label, std::vector<std::string>{"BU", "5"});
                    }),
                    testing::HasSubstr(problem));
    }
}

TEST(PaintImport, OffersWhatALineMayMean) {
    using enum ImportMatch;
    struct Case {
        const char* Text;
        ImportMatch Match;
        std::vector<int> Paints;
    };
    for (const Case& each : {Case{"PY3", Exact, {2}}, Case{"Oils: Cadmium Red", Exact, {1}},
                             Case{"hansa\r\n", Exact, {2}}, Case{"Cadmium Red", Near, {1, 3}},
                             Case{"Cadmium Rde [77]", Near, {3}}, Case{"bleu sky", Near, {4}},
                             Case{"PY4", Unknown, {}}, Case{"6\" brush", Unknown, {}},
                             Case{"set;name\ncraft;Cadmum Red\n", Near, {3}},
                             Case{"name,code\nHansa,PY3\n", Exact, {2}}}) {
        const auto proposals = ProposeImport(each.Text, "list.txt", kCatalogue);
        ASSERT_EQ(proposals.size(), 1U) << each.Text;
        EXPECT_EQ(proposals[0].Match, each.Match) << each.Text;
        EXPECT_EQ(proposals[0].Paints, each.Paints) << each.Text;
    }
}

}  // namespace
}  // namespace vendrel
