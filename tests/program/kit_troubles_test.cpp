#include <gmock/gmock.h>

#include "program/studio.h"

namespace vendrel {
namespace {

using test::Studio;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(KitTroubles, OnePhotoThatFailsDoesNotStopTheOthers) {
    Studio studio;
    studio.AddPhoto("good.bmp");
    studio.AddPhoto("later.bmp", 20);
    const std::string whole = studio.Files.Read("good.bmp");
    studio.Files.Write("cut.bmp", whole.substr(0, whole.size() / 2));
    studio.Files.Write("text.bmp", "this is no bitmap");
    EXPECT_EQ(
        studio.Kit({studio.Path("good.bmp"), studio.Path("cut.bmp"), studio.Path("text.bmp"),
                    "missing.bmp", studio.Path("later.bmp"), "--outputs", "painting", "--json"}),
        1);
    EXPECT_THAT(studio.Err, AllOf(HasSubstr("cut.bmp"), HasSubstr("text.bmp"),
                                  HasSubstr("missing.bmp: there is no such photo")));
    EXPECT_EQ(std::count(studio.Out.begin(), studio.Out.end(), '\n'), 5);
    EXPECT_THAT(studio.Names("Results"),
                UnorderedElementsAre("good Easy Painting.BMP", "good Easy Kit.json",
                                     "later Easy Painting.BMP", "later Easy Kit.json"));
}

TEST(KitTroubles, PhotosThatWouldShareTheirFilesAreRefusedFromTheSecondOn) {
    Studio studio;
    studio.AddPhoto("a.b.bmp");
    studio.AddPhoto("a.c.bmp", 30);
    EXPECT_EQ(studio.Kit({studio.Path("a.b.bmp"), studio.Path("a.c.bmp"), "--quiet"}), 1);
    EXPECT_THAT(studio.Err, AllOf(HasSubstr("a.c.bmp"), HasSubstr("named \"a\" too")));
    EXPECT_EQ(studio.Out, "");
    EXPECT_THAT(studio.Names("Pictures"), UnorderedElementsAre("a.b.bmp"));
}

TEST(KitTroubles, BrokenDataIsNamedAndNothingIsWritten) {
    struct Case {
        const char* File;
        const char* Text;
        std::vector<std::string> Words;
        const char* Sentence;
    };
    const Case cases[] = {
        {"Data/studiopaint.csv", "1,2,300,a,b,c\r\n", {}, "studiopaint.csv, line 1"},
        {"Data/studiopaint.csv", "", {}, "studiopaint.csv"},
        {"Data/Symbols.txt", "3\r\n1,x\r\n", {}, "Symbols.txt, line"},
        {"templates/Bad.csv",
         " 2\r\n1,2,3,\"a\",\"b\",\"c\"\r\n",
         {"--template", "Bad"},
         "Bad.csv"},
        {"templates/None.csv", " 0\r\n", {"--template", "None"}, "None.csv: has no paints"},
        {"x", "", {"--template", "Missing"}, "Missing.csv"},
        {"x", "", {"--from-grid"}, "ball-Easy.stp: there is no saved grid"},
        {"Saved Stipples/ball-Easy.stp",
         "2,10,10,16\r\n1,2,3\r\n",
         {"--from-grid"},
         "ball-Easy.stp, line"},
        {"Results", "in the way", {}, "Results"},
    };
    for (const Case& c : cases) {
        Studio studio;
        studio.AddPhoto("ball.bmp");
        studio.Files.Write(c.File, c.Text);
        std::vector<std::string> words = {studio.Path("ball.bmp"), "--quiet"};
        words.insert(words.end(), c.Words.begin(), c.Words.end());
        EXPECT_EQ(studio.Kit(words), 1) << c.Sentence;
        EXPECT_THAT(studio.Err, HasSubstr(c.Sentence));
        EXPECT_EQ(studio.Out, "");
        if (std::string(c.File) != "Results") {
            EXPECT_THAT(studio.Names("Results"), IsEmpty()) << c.Sentence;
        }
    }
}

TEST(KitTroubles, MissingDataIsNamedWhenNothingShips) {
    Studio studio{std::filesystem::path()};
    studio.AddPhoto("ball.bmp");
    EXPECT_EQ(studio.Kit({studio.Path("ball.bmp")}), 1);
    EXPECT_THAT(studio.Err, HasSubstr("Data/"));
}

TEST(KitTroubles, WrongUsageIsAnsweredWithStatusTwo) {
    Studio studio;
    EXPECT_EQ(studio.Run({"kit"}), 2);
    EXPECT_EQ(studio.Kit({"ball.bmp", "--sets", "Chalk"}), 2);
    EXPECT_THAT(studio.Err, AllOf(HasSubstr("\"Chalk\""), HasSubstr("The catalogue has")));
    EXPECT_EQ(studio.Out, "");
    EXPECT_EQ(studio.Run({"symbols"}), 1);
    EXPECT_EQ(studio.Run({}), 0);
    EXPECT_THAT(studio.Out, HasSubstr("vendrel kit PBNLady.bmp"));
}

}  // namespace
}  // namespace vendrel
