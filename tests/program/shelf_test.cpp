#include <gmock/gmock.h>

#include <set>

#include "plan/blank_exporter.h"
#include "program/studio.h"
#include "support/csv_table.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

using test::Studio;
using testing::HasSubstr;

struct OwnersStudio : Studio {
    struct Fonts : test::BlankExporter {
        void Write(OutputId, PlannedKit&, const Target&) const override {}
    };

    OwnersStudio() {
        MakeExporter = [] { return std::make_unique<Fonts>(); };
        AddPhoto("Pictures/ball.bmp");
        Files.Write("list.txt",
                    "Titanium White\nPB29\nBurnt Sienna\nCadmium Redd\nno such thing\n");
    }
    int Tool(std::vector<std::string> words) {
        words.insert(words.end(), {"--folder", Files.Path().string()});
        return Run(words);
    }
    int Import(const std::string& take) {
        return Tool({"paints", "--import", Path("list.txt"), "--take", take});
    }
    /// Name by name, what a saved kit is painted with.
    [[nodiscard]] std::set<std::string> PaintsOf(const std::string& grid) const {
        const auto lines = SplitLines(Files.Read("Saved Stipples/" + grid));
        const CsvTable head = ParseCsv(lines.at(0), "head");
        std::set<std::string> names;
        for (int i = 1; i <= std::stoi(head.Rows[0].Fields[0]); ++i) {
            names.insert(
                ParseCsv(lines.at(static_cast<std::size_t>(i)), "paint").Rows[0].Fields.at(3));
        }
        return names;
    }
    [[nodiscard]] std::set<std::string> Owned() const {
        const CsvTable shelf = ParseCsv(Files.Read("Data/mypaints.csv"), "shelf");
        std::set<std::string> names;
        for (std::size_t i = 1; i < shelf.Rows.size(); ++i) {
            names.insert(shelf.Rows[i].Fields.at(*CsvColumn(shelf.Rows[0], {"name"})));
        }
        return names;
    }
};

TEST(MyPaints, AKitIsPaintedWithWhatWasImported) {
    OwnersStudio studio;
    ASSERT_EQ(studio.Import("exact"), 0) << studio.Err;
    const std::set<std::string> exact = studio.Owned();
    ASSERT_EQ(studio.Import("all"), 0);
    const std::set<std::string> owned = studio.Owned();
    EXPECT_GT(owned.size(), exact.size());  // the misspelled one
    EXPECT_EQ(studio.Import("5"), 0);       // which no paint is like
    EXPECT_EQ(studio.Owned(), owned);
    EXPECT_EQ(studio.Import("most"), 2);

    ASSERT_EQ(studio.Kit({"ball.bmp", "--outputs", "grid", "--owned"}), 0) << studio.Err;
    for (const std::string& name : studio.PaintsOf("ball-Easy.stp")) {
        EXPECT_TRUE(owned.contains(name)) << name;
    }
    std::size_t bought = 0;
    for (const int most : {0, 2, 50}) {
        const std::string title = "ball" + std::to_string(most);
        ASSERT_EQ(studio.Kit({"ball.bmp", "--outputs", "grid", "--owned-first", "0.001",
                              "--buy-at-most", std::to_string(most), "--title", title}),
                  0)
            << studio.Err;
        std::size_t now = 0;
        for (const std::string& name : studio.PaintsOf(title + "-Easy.stp")) {
            now += owned.contains(name) ? 0 : 1;
        }
        EXPECT_LE(now, static_cast<std::size_t>(most));
        EXPECT_GE(now, bought);
        bought = now;
    }
    EXPECT_GT(bought, 0U);
}

TEST(MyPaints, PaintingAKitTakesItsPaintsOffAndUndoGivesThemBack) {
    OwnersStudio studio;
    ASSERT_EQ(studio.Tool({"shop", "--painted"}), 2);  // which kit?
    studio.Files.Write("Data/mypaints.csv",
                       "set,name,code,ml left\nArtist Acrylics,Titanium White,PW6,40\n"
                       "Artist Acrylics,Mars Black,PBk11,\n");
    ASSERT_EQ(
        studio.Kit({"ball.bmp", "--outputs", "grid", "--owned", "--save-kit", "--canvas", "40cm"}),
        0)
        << studio.Err;
    const auto listed = [&studio] {
        EXPECT_EQ(studio.Tool({"shop", "ball.kit", "--json"}), 0) << studio.Err;
        return studio.Out;
    };
    const std::string before = listed();
    EXPECT_THAT(before, HasSubstr("\"leftMl\":40.0"));
    ASSERT_EQ(studio.Tool({"shop", "--painted", "ball.kit"}), 0);
    EXPECT_THAT(studio.Out, HasSubstr("taken off 1 paint"));
    EXPECT_NE(listed(), before);
    EXPECT_EQ(studio.Tool({"shop", "--undo", "ball.kit"}), 0);
    EXPECT_EQ(listed(), before);
    EXPECT_EQ(studio.Tool({"shop", "--undo", "ball.kit"}), 1);
    EXPECT_THAT(studio.Err, HasSubstr("No painting of the kit"));
    EXPECT_EQ(listed(), before);
}

}  // namespace
}  // namespace vendrel
