#include <gmock/gmock.h>

#include <cmath>
#include <map>
#include <memory>
#include <set>

#include "convert/bitmap_reader.h"
#include "plan/blank_exporter.h"
#include "program/studio.h"
#include "support/text_file.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

using test::Figure;
using test::HeaderNumber;
using test::Studio;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using testing::UnorderedElementsAre;

TEST(KitFiles, AKitIsASheetAPaintingAndAGridNamedAfterPhotoAndDifficulty) {
    for (const auto& [level, word] : std::map<std::string, std::string>{
             {"easy", "Easy"}, {"medium", "Medium"}, {"difficult", "Difficult"}}) {
        Studio studio;
        studio.AddPhoto("ball.one.bmp");
        ASSERT_EQ(studio.Kit({studio.Path("ball.one.bmp"), "--difficulty", level}), 0)
            << studio.Err;
        EXPECT_THAT(studio.Names("Results"),
                    UnorderedElementsAre(
                        "ball " + word + " PBS.BMP", "ball " + word + " Painting.BMP",
                        "ball " + word + " Symbol Reference.BMP", "ball " + word + " Kit.json"));
        EXPECT_THAT(studio.Names("Saved Stipples"), UnorderedElementsAre("ball-" + word + ".stp"));
        EXPECT_THAT(studio.Names("Pictures"), UnorderedElementsAre("ball.one.bmp"));
    }
}

TEST(KitFiles, FiguresOfTheJsonAgreeWithTheFiles) {
    Studio studio;
    studio.AddPhoto("ball.bmp");
    ASSERT_EQ(studio.Kit({studio.Path("ball.bmp"), "--json", "--final-paints", "16"}), 0);
    const std::string& json = studio.Out;
    EXPECT_THAT(json, StartsWith("{\"photo\": "));
    EXPECT_EQ(std::count(json.begin(), json.end(), '\n'), 1);

    const std::string painting = studio.Files.Read("Results/ball Easy Painting.BMP");
    const int width = HeaderNumber(painting, 18);
    const int height = HeaderNumber(painting, 22);
    EXPECT_EQ(width, Figure(json, "workingSize", "width"));
    EXPECT_EQ(height, Figure(json, "workingSize", "height"));
    const std::string sheet = studio.Files.Read("Results/ball Easy PBS.BMP");
    EXPECT_EQ(HeaderNumber(sheet, 18), 2 * width);

    const int across = Figure(json, "stipples", "across");
    const int down = Figure(json, "stipples", "down");
    EXPECT_EQ(across * 8, width);
    EXPECT_EQ(down * 8, height);
    const int kept = Figure(json, "paints", "kept");
    EXPECT_LE(kept, 16);
    EXPECT_GE(Figure(json, "paints", "matched"), kept);
    const auto lines = SplitLines(studio.Files.Read("Saved Stipples/ball-Easy.stp"));
    EXPECT_EQ(lines.at(0), std::to_string(kept) + "," + std::to_string(across) + "," +
                               std::to_string(down) + ",16");
    EXPECT_EQ(lines.size(), static_cast<std::size_t>(1 + kept + across * down));
    std::set<std::string> areas;
    for (std::size_t i = static_cast<std::size_t>(kept) + 1; i < lines.size(); ++i) {
        areas.insert(lines[i].substr(0, lines[i].find(',')));
    }
    EXPECT_EQ(static_cast<int>(areas.size()), Figure(json, "paints", "areas"));
    EXPECT_GT(Figure(json, "numbering", "symbols"), 0);
}

TEST(KitFiles, TheSamePhotoGivesTheSameBytesWhateverRanBefore) {
    Studio alone;
    alone.AddPhoto("ball.bmp");
    ASSERT_EQ(alone.Kit({alone.Path("ball.bmp")}), 0);
    Studio together;
    together.AddPhoto("ball.bmp");
    together.AddPhoto("other.bmp", 40);
    ASSERT_EQ(together.Kit({together.Path("other.bmp"), together.Path("ball.bmp")}), 0);
    for (const char* file : {"Results/ball Easy PBS.BMP", "Results/ball Easy Painting.BMP",
                             "Saved Stipples/ball-Easy.stp"}) {
        EXPECT_TRUE(alone.Files.Read(file) == together.Files.Read(file)) << file;
    }
    EXPECT_FALSE(together.Files.Read("Results/ball Easy Painting.BMP") ==
                 together.Files.Read("Results/other Easy Painting.BMP"));
}

TEST(KitFiles, SettingsChangeThePaintingForThisRunOnly) {
    Studio studio;
    studio.AddPhoto("ball.bmp");
    ASSERT_EQ(studio.Kit({studio.Path("ball.bmp"), "--outputs", "painting"}), 0);
    EXPECT_THAT(studio.Names("Saved Stipples"), IsEmpty());
    const std::string painting = studio.Files.Read("Results/ball Easy Painting.BMP");
    const std::string list = studio.Files.Read("Data/paintlist.txt");
    studio.Files.Write("templates/Two.csv",
                       " 2\r\n250,250,250,\"Own\",\"W\",\"White\"\r\n90,20,10,\"Own\",\"R\","
                       "\"Brick\"\r\n");
    for (const std::vector<std::string>& words : {std::vector<std::string>{"--sample", "pixel"},
                                                  {"--sets", "Artist Acrylics"},
                                                  {"--template", "Two"}}) {
        std::vector<std::string> all = {"ball.bmp", "--outputs", "painting", "--json"};
        all.insert(all.end(), words.begin(), words.end());
        ASSERT_EQ(studio.Kit(all), 0) << studio.Err;
        EXPECT_FALSE(studio.Files.Read("Results/ball Easy Painting.BMP") == painting) << words[0];
    }
    EXPECT_EQ(Figure(studio.Out, "paints", "kept"), 2);
    EXPECT_EQ(studio.Files.Read("Data/paintlist.txt"), list);
}

TEST(KitFiles, ASavedGridIsKeptTakenUpAndReplacedOnDemand) {
    Studio studio;
    studio.AddPhoto("ball.bmp");
    const std::string grid = "Saved Stipples/ball-Easy.stp";
    ASSERT_EQ(studio.Kit({studio.Path("ball.bmp")}), 0);
    const std::string made = studio.Files.Read(grid);
    const std::string painting = studio.Files.Read("Results/ball Easy Painting.BMP");

    // The first stipple by hand in another paint, as a text editor would do it.
    auto lines = SplitLines(made);
    const auto first = static_cast<std::size_t>(std::stoi(lines[0])) + 1;
    const std::string paint = lines[first].starts_with("1,1,") ? "2" : "1";
    lines[first] = "1," + paint + ",5,5";
    std::string edited;
    for (const std::string& line : lines) {
        edited += line + "\n";
    }
    studio.Files.Write(grid, edited);

    EXPECT_EQ(studio.Kit({"ball.bmp"}), 0);
    EXPECT_EQ(studio.Files.Read(grid), edited);
    EXPECT_THAT(studio.Out, HasSubstr("ball-Easy.stp is a different grid and was kept"));
    EXPECT_TRUE(studio.Files.Read("Results/ball Easy Painting.BMP") == painting);

    EXPECT_EQ(studio.Kit({"ball.bmp", "--from-grid"}), 0);
    EXPECT_FALSE(studio.Files.Read("Results/ball Easy Painting.BMP") == painting);
    EXPECT_EQ(studio.Files.Read(grid), edited);
    EXPECT_THAT(studio.Out, Not(HasSubstr("different grid")));

    EXPECT_EQ(studio.Kit({"ball.bmp", "--replace-grid"}), 0);
    EXPECT_EQ(studio.Files.Read(grid), made);
    EXPECT_THAT(studio.Out, Not(HasSubstr("different grid")));
}

// Draws nothing, but says what it was asked for.
class NamingExporter final : public test::BlankExporter {
  public:
    explicit NamingExporter(std::vector<std::string>& asked) : asked_(asked) {}
    void Write(OutputId output, PlannedKit& kit, const Target& target) const override {
        WriteWholeFile(target.File, "drawn");
        asked_.push_back(output == OutputId::Chart
                             ? "chart"
                             : "pdf " + std::to_string(std::lround(kit.Settings().CanvasCm)));
    }

  private:
    std::vector<std::string>& asked_;
};

TEST(KitFiles, ChartAndPdfComeFromTheHalfWithFonts) {
    Studio studio;
    studio.AddPhoto("Pictures/ball.bmp");
    std::vector<std::string> asked;
    studio.MakeExporter = [&asked] { return std::make_unique<NamingExporter>(asked); };
    EXPECT_EQ(studio.Kit({"ball.bmp"}), 0);
    EXPECT_EQ(studio.Kit({"ball.bmp", "--outputs", "pdf", "--canvas", "50cm"}), 0);
    EXPECT_THAT(studio.Out, HasSubstr("ball Easy Kit.pdf"));
    EXPECT_THAT(studio.Out, Not(HasSubstr("no room for a symbol")));
    EXPECT_EQ(studio.Kit({"ball.bmp", "--outputs", "pdf", "--canvas", "12cm", "--difficulty",
                          "difficult", "--json"}),
              0);
    EXPECT_GT(Figure(studio.Out, "plan", "below2mm"), 0);
    EXPECT_THAT(studio.Out, HasSubstr(" mm; a canvas of "));
    EXPECT_EQ(studio.Kit({"ball.bmp", "--outputs", "sheet"}), 0);
    EXPECT_THAT(asked, testing::ElementsAre("chart", "pdf 50", "pdf 12"));
}

TEST(KitFiles, WithoutFontsAKitHasNoChartUnlessItWasAskedFor) {
    Studio studio;
    studio.AddPhoto("Pictures/ball.bmp");
    EXPECT_EQ(studio.Kit({"ball.bmp"}), 0);
    EXPECT_THAT(studio.Out, HasSubstr("with Qt"));
    for (const char* output : {"chart", "pdf", "sheet,pdf"}) {
        EXPECT_EQ(studio.Kit({"ball.bmp", "--outputs", output}), 1) << output;
        EXPECT_THAT(studio.Err, HasSubstr("with Qt"));
    }
}

TEST(KitFiles, FoldersAndPhotosAreFoundWhateverTheirLetters) {
    Studio studio;
    std::filesystem::create_directories(studio.Files / "data");
    std::filesystem::create_directories(studio.Files / "RESULTS");
    studio.Files.Write("data/paintlist.txt", "No such set\r\n");
    studio.AddPhoto("pictures/Ball.BMP");
    EXPECT_EQ(studio.Kit({"ball.bmp", "--outputs", "painting"}), 1);
    EXPECT_THAT(studio.Err, HasSubstr("Paint Shop"));
    std::filesystem::remove(studio.Files / "data/paintlist.txt");
    EXPECT_EQ(studio.Kit({"ball.bmp", "--outputs", "painting"}), 0) << studio.Err;
    EXPECT_THAT(studio.Names("RESULTS"),
                UnorderedElementsAre("Ball Easy Painting.BMP", "Ball Easy Kit.json"));
    EXPECT_THAT(studio.Names("Pictures"), IsEmpty());
}

TEST(KitFiles, TheShippedPhotoIsTakenWhenTheFolderHasNone) {
    Studio studio;
    EXPECT_EQ(studio.Kit({"PBNLady.bmp", "--outputs", "painting"}), 0) << studio.Err;
    EXPECT_THAT(studio.Names("Pictures"), UnorderedElementsAre("PBNLady.bmp"));
}

}  // namespace
}  // namespace vendrel
