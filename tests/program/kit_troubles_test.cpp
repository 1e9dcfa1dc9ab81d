#include <gmock/gmock.h>
#include <sys/stat.h>

#include <fstream>
#include <new>

#include "convert/bmp_bytes.h"
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
    studio.AddPhoto(".later", 20);
    const std::string whole = studio.Files.Read("good.bmp");
    studio.Files.Write("cut.bmp", whole.substr(0, whole.size() / 2));
    studio.Files.Write("text.bmp", "this is no bitmap");
    EXPECT_EQ(studio.Kit({studio.Path("good.bmp"), studio.Path("cut.bmp"), studio.Path("text.bmp"),
                          "missing.bmp", std::string(300, 'x') + ".bmp", studio.Path(".later"),
                          "--outputs", "painting", "--json"}),
              1);
    EXPECT_THAT(studio.Err,
                AllOf(HasSubstr("cut.bmp"), HasSubstr("text.bmp"),
                      HasSubstr("missing.bmp: there is no such photo"),
                      HasSubstr("xxx.bmp: cannot be opened for reading (File name too long)")));
    EXPECT_EQ(std::count(studio.Out.begin(), studio.Out.end(), '\n'), 6);
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

/// Fails every photo in its own way.
class Thrower final : public PhotoDecoder {
  public:
    std::vector<std::string> Endings() const override { return {}; }
    BitmapSize Size(const std::filesystem::path& photo) const override {
        if (photo.stem() == "large") {
            throw std::bad_alloc();
        }
        throw std::filesystem::filesystem_error("status", photo,
                                                std::make_error_code(std::errc::io_error));
    }
    Surface Decode(const std::filesystem::path& /*photo*/, const ReadProgress&) const override {
        return {};
    }
};

TEST(KitTroubles, EveryFailureIsASentenceThatNamesThePhoto) {
    const Thrower thrower;
    Studio studio;
    studio.Decoder = &thrower;
    studio.AddPhoto("ball.bmp");
    studio.Files.Write("large.jpg", "x");
    studio.Files.Write("gone.jpg", "x");
    studio.Files.Write("a\n\x1b[2J.bmp", "x");
    ASSERT_EQ(mkfifo((studio.Files / "pipe.bmp").c_str(), 0600), 0);
    test::BmpBytes torn{.Bits = 8, .Compression = 1, .ColorsUsed = 1};
    torn.Palette = {0};
    torn.Pixels = {2, 0, 0, 1};
    studio.Files.Write("torn.bmp", torn.Make());
    const std::string endless(252, 'n');
    studio.AddPhoto(std::string(225, 'n') + ".bmp");
    for (const auto& [photo, sentence] :
         {std::pair{studio.Path("large.jpg"), "large.jpg: there is not enough memory"},
          {studio.Path("gone.jpg"), "gone.jpg: cannot be used (Input/output error)"},
          {studio.Path("pipe.bmp"), "pipe.bmp: is a pipe"},
          {studio.Path("torn.bmp"), "torn.bmp: is damaged"},
          {studio.Files.Path().string(), "is a folder"},
          {endless + ".bmp", ".bmp: cannot be opened"},
          {studio.Path(std::string(225, 'n') + ".bmp"), "its name is too long"},
          {studio.Path("a\n\x1b[2J.bmp"), "a\\n\\x1b[2J.bmp: is not a BMP"}}) {
        EXPECT_EQ(studio.Kit({photo, "--difficulty", "difficult", "--quiet"}), 1);
        EXPECT_THAT(studio.Err, HasSubstr(sentence));
        EXPECT_EQ(std::count(studio.Err.begin(), studio.Err.end(), '\n'), 1);
    }
    EXPECT_THAT(studio.Names("Pictures"), IsEmpty());
    // What fits is made.
    EXPECT_EQ(studio.Kit({studio.Path(std::string(225, 'n') + ".bmp"), "--outputs", "grid"}), 0);
}

TEST(KitTroubles, DataThatIsOddIsNotedInEveryKit) {
    Studio studio;
    studio.AddPhoto("ball.bmp");
    studio.AddPhoto("other.bmp", 20);
    studio.Files.Write("Data/paintlist.txt", "Portrait and Earth Tones\r\nChalk\x1b\r\n");
    EXPECT_EQ(studio.Kit({studio.Path("missing.bmp"), studio.Path("ball.bmp"),
                          studio.Path("other.bmp"), "--outputs", "painting"}),
              1);
    const std::size_t first = studio.Out.find("no paint set \"Chalk\\x1b\"");
    EXPECT_THAT(studio.Out.substr(std::min(first + 1, studio.Out.size())),
                HasSubstr("no paint set \"Chalk\\x1b\""));
}

TEST(KitTroubles, AnAnswerThatCannotBeWrittenIsAFailure) {
    Studio studio;
    studio.AddPhoto("ball.bmp");
    const std::string folder = studio.Files.Path().string();
    const std::string photo = studio.Path("ball.bmp");
    for (const std::vector<std::string_view>& words :
         {std::vector<std::string_view>{"kit", photo, "--folder", folder, "--outputs", "grid"},
          {"kit", photo, "--folder", folder, "--outputs", "grid", "--json"},
          {"--version"}}) {
        std::ofstream full("/dev/full");
        std::ostringstream err;
        EXPECT_EQ(RunCommandLine(words, {.Out = full, .Err = err, .Shipped = VENDREL_SOURCE_DIR}),
                  1);
        EXPECT_THAT(err.str(), HasSubstr("cannot be written to the standard output"));
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
