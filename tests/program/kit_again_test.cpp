#include <gmock/gmock.h>

#include <filesystem>

#include "program/studio.h"
#include "support/text_file.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;
using test::Studio;
using testing::HasSubstr;

TEST(KitAgain, IsTheSameToTheByteWhateverTheSettingsWere) {
    for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{
             {"--difficulty", "medium", "--final-paints", "16", "--sample", "pixel"},
             {"--paintable", "--canvas", "30x20cm"},
             {"--match", "eye", "--fit", "crop", "--sets", "Craft Acrylics"}}) {
        Studio studio;
        studio.AddPhoto("ball.bmp");
        std::vector<std::string> all = {studio.Path("ball.bmp"), "--save-kit", "--title", "beach"};
        all.insert(all.end(), words.begin(), words.end());
        ASSERT_EQ(studio.Kit(all), 0) << studio.Err;
        const std::string kit = studio.Files.Read("Kits/beach.kit");
        EXPECT_EQ(kit.find("\"of\": \"ball.bmp\"") != kit.npos, words.back() == "Craft Acrylics");
        fs::rename(studio.Files / "Results", studio.Files / "First");
        fs::rename(studio.Files / "Saved Stipples", studio.Files / "FirstGrid");
        // Neither the painter's paints nor the board of this run count.
        studio.Files.Write("Data/paintlist.txt", "\"Portrait and Earth Tones\"\r\n");
        ASSERT_EQ(studio.Run({"kit", "beach.kit", "--folder", studio.Files.Path().string()}), 0)
            << studio.Err;
        for (const auto& [before, now] :
             {std::pair{"First/", "Results/"}, {"FirstGrid/", "Saved Stipples/"}}) {
            ASSERT_FALSE(studio.Names(before).empty());
            for (const std::string& name : studio.Names(before)) {
                EXPECT_TRUE(studio.Files.Read(before + name) == studio.Files.Read(now + name))
                    << words[0] << " " << name;
            }
        }
        EXPECT_EQ(studio.Files.Read("Kits/beach.kit"), kit);
    }
}

TEST(KitAgain, BecomesAnotherKitUnderATitleOfItsOwn) {
    Studio studio;
    studio.AddPhoto("ball.bmp");
    ASSERT_EQ(studio.Kit({studio.Path("ball.bmp"), "--save-kit"}), 0) << studio.Err;
    const std::string kit = studio.Files.Read("Kits/ball.kit");
    const std::string painting = studio.Files.Read("Results/ball Easy Painting.BMP");
    EXPECT_EQ(studio.Kit({"ball.kit", "--sample", "pixel"}), 1);
    EXPECT_THAT(studio.Err, HasSubstr("Add --title NAME"));
    EXPECT_EQ(studio.Kit({"ball.kit", "--difficulty", "easy", "--outputs", "painting"}), 0);
    ASSERT_EQ(studio.Kit({"ball.kit", "--sample", "pixel", "--title", "sister"}), 0) << studio.Err;
    EXPECT_TRUE(studio.Files.Read("Results/ball Easy Painting.BMP") == painting);
    EXPECT_EQ(studio.Files.Read("Kits/ball.kit"), kit);

    ASSERT_EQ(studio.Kit({"ball.bmp", "--sample", "pixel", "--title", "fresh"}), 0);
    EXPECT_TRUE(studio.Files.Read("Results/sister Easy Painting.BMP") ==
                studio.Files.Read("Results/fresh Easy Painting.BMP"));
    for (const char* title : {"sister", "fresh"}) {  // a kit file, or pictures alone
        EXPECT_EQ(studio.Kit({"ball.kit", "--final-paints", "16", "--title", title}), 1);
        EXPECT_THAT(studio.Err, HasSubstr("Choose another --title"));
    }
    EXPECT_EQ(studio.Kit({"sister.kit"}), 0) << studio.Err;
    EXPECT_EQ(studio.Kit({"ball.bmp", "--sample", "pixel", "--save-kit"}), 1);
    EXPECT_EQ(studio.Files.Read("Kits/ball.kit"), kit);
}

TEST(KitAgain, SistersOfKitsMadePaintableInTheWindowArePaintable) {
    Studio studio;
    studio.AddPhoto("ball.bmp");
    ASSERT_EQ(studio.Kit({studio.Path("ball.bmp"), "--paintable", "--save-kit"}), 0);
    std::string kit = studio.Files.Read("Kits/ball.kit");
    const std::string chosen = "\"paintable\": true";  // of the settings; the grid's is further on
    kit.replace(kit.find(chosen), chosen.size(), "\"paintable\": false");
    studio.Files.Write("Kits/ball.kit", kit);
    ASSERT_EQ(studio.Kit({"ball.kit", "--final-paints", "16", "--title", "sister", "--json"}), 0);
    EXPECT_THAT(studio.Out, HasSubstr(chosen));
}

TEST(KitAgain, AsksForThePhotoThatMovedOrChanged) {
    Studio studio;
    studio.AddPhoto("ball.bmp");
    ASSERT_EQ(studio.Kit({studio.Path("ball.bmp"), "--save-kit"}), 0);
    fs::remove(studio.Files / "Pictures/ball.bmp");
    EXPECT_EQ(studio.Kit({"ball.kit"}), 1);
    EXPECT_THAT(studio.Err, HasSubstr("is not there. Name it with --photo FILE."));
    studio.AddPhoto("Pictures/ball.bmp", 20);
    EXPECT_EQ(studio.Kit({"ball.kit"}), 1);
    EXPECT_THAT(studio.Err, HasSubstr("is another one by now, or was changed."));
    EXPECT_EQ(studio.Kit({"ball.kit", "--photo", studio.Path("ball.bmp")}), 0) << studio.Err;
    EXPECT_EQ(studio.Kit({"ball.kit", "--photo", studio.Path("Pictures/ball.bmp")}), 1);
    EXPECT_THAT(studio.Err, HasSubstr("is not the photo that the kit was made of"));
    EXPECT_EQ(studio.Kit({"missing.kit"}), 1);
    EXPECT_THAT(studio.Err, HasSubstr("there is no such kit"));
}

// Made by the first version that had kit files, and edited by hand.
TEST(KitAgain, OpensTheFirstKitForEver) {
    Studio studio;
    const fs::path kept = fs::path(VENDREL_SOURCE_DIR) / "tests/kitfile/kept";
    fs::create_directories(studio.Files / "Pictures");
    fs::copy(kept / "ball.bmp", studio.Files / "Pictures/ball.bmp");
    const std::string first = ReadTextFile(kept / "first.kit");
    studio.Files.Write("Kits/first.kit", first);
    ASSERT_EQ(studio.Kit({"first.kit", "--json"}), 0) << studio.Err;
    EXPECT_THAT(studio.Out, HasSubstr("\"mark\": \"39WAXJBC\""));
    EXPECT_THAT(studio.Files.Read("Results/First kit 2026 Easy Kit.json"),
                HasSubstr("3d6c812bb2f003109ef4857319946920676c5d5614e39bc841e69c98b5813261"));
    // A copy differs in name alone, though its template is long gone.
    ASSERT_EQ(studio.Kit({"first.kit", "--title", "Copy"}), 0) << studio.Err;
    const std::string copy = studio.Files.Read("Kits/Copy.kit");
    const std::size_t photo = first.find("\"photo\"");
    EXPECT_THAT(copy, HasSubstr(first.substr(photo, first.find("\"base\"") - photo)));
    ASSERT_EQ(studio.Kit({"first.kit", "--difficulty", "medium", "--title", "Fine"}), 0);
    EXPECT_THAT(studio.Out, HasSubstr("All 7 edits kept"));
    EXPECT_THAT(copy, HasSubstr("\"shelf\": {\"of\": \"a later version\"}"));
}

}  // namespace
}  // namespace vendrel
