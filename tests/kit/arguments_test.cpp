#include "kit/arguments.h"

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>

#include "support/error.h"

namespace vendrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

Arguments Parse(std::initializer_list<std::string_view> words) {
    return ParseArguments({words.begin(), words.size()});
}

TEST(Arguments, APhotoAloneGetsTheDefaults) {
    const Arguments arguments = Parse({"kit", "lady.bmp"});
    ASSERT_EQ(arguments.What, Command::Kit);
    const KitOptions& kit = arguments.Kit;
    EXPECT_THAT(kit.Photos, ElementsAre("lady.bmp"));
    EXPECT_EQ(kit.Chosen.FinalPaints, 50);
    EXPECT_EQ(kit.Screen.Width, 1920 * 15);
    EXPECT_EQ(kit.Screen.Height, 1080 * 15);
    EXPECT_EQ(kit.Plan.Sheet, Paper::A4);
    EXPECT_EQ(kit.Plan.CanvasCm, 0);
}

TEST(Arguments, EveryOptionArrivesWithValuesBehindOrInside) {
    const KitOptions kit = Parse({"kit",          "--folder=here",
                                  "--difficulty", "difficult",
                                  "a.bmp",        "--final-paints=16",
                                  "--sample",     "pixel",
                                  "--sets",       "Oils, Fine",
                                  "--sets=Greys", "--screen",
                                  "800x600",      "--outputs=painting,grid,pdf",
                                  "--paper=a3",   "--canvas=60.5cm",
                                  "--from-grid",  "--replace-grid",
                                  "--json",       "--quiet",
                                  "--",           "--odd.bmp"})
                               .Kit;
    EXPECT_EQ(kit.Folder, "here");
    EXPECT_EQ(kit.Chosen.Level, Difficulty::Difficult);
    EXPECT_EQ(kit.Chosen.FinalPaints, 16);
    EXPECT_EQ(kit.Chosen.Sample, Sampling::Pixel);
    EXPECT_THAT(kit.Sets, ElementsAre("Oils, Fine", "Greys"));
    EXPECT_EQ(kit.Screen.Height, 600 * 15);
    EXPECT_TRUE(kit.Outputs.ByName);
    for (const Output& output : AllOutputs()) {
        EXPECT_EQ(kit.Outputs.Chosen.Has(output.Id),
                  output.Word == "painting" || output.Word == "grid" || output.Word == "pdf")
            << output.Word;
    }
    EXPECT_EQ(kit.Plan.Sheet, Paper::A3);
    EXPECT_EQ(kit.Plan.CanvasCm, 60.5);
    const KitOptions paintable =
        Parse({"kit", "a.bmp", "--match=plain", "--paintable", "--smallest", "9.5mm2",
               "--detail=70", "--title", "Cat", "--lines=steps", "--gray", "80", "--address",
               "1 Shore Rd|| Hull\\nUK", "--field", "Gift-For=a=b"})
            .Kit;
    EXPECT_TRUE(paintable.Chosen.Paintable);
    EXPECT_EQ(paintable.Chosen.Match, Matching::Plain);
    EXPECT_EQ(paintable.Chosen.Limits, (PaintLimits{9.5, 2}));
    EXPECT_EQ(paintable.Chosen.Detail, 70);
    EXPECT_EQ(paintable.Plan.CanvasCm, 40);
    EXPECT_EQ(paintable.Title, "Cat");
    EXPECT_THAT(paintable.Plan.Shop.Address, ElementsAre("1 Shore Rd", "Hull", "UK"));
    EXPECT_EQ(paintable.Plan.Shop.Fields.at("gift for"), "a=b");
    EXPECT_EQ(paintable.Plan.Lines, LineShape::Steps);
    EXPECT_EQ(paintable.Plan.Gray, 80);
    EXPECT_EQ(kit.Plan.Lines, LineShape::ByKit);
    EXPECT_TRUE(kit.FromGrid && kit.ReplaceGrid && kit.Json && kit.Quiet);
    EXPECT_THAT(kit.Photos, ElementsAre("a.bmp", "--odd.bmp"));
    EXPECT_EQ(Parse({"kit", "a.bmp", "--template", "Skin"}).Kit.Template, "Skin");
}

TEST(Arguments, CropTakesAPartOrKeepsTheCentre) {
    const Arguments behind = Parse({"kit", "--crop", "a.bmp"});
    EXPECT_EQ(behind.Kit.Chosen.Fit, PhotoFit::Crop);
    EXPECT_THAT(behind.Kit.Photos, ElementsAre("a.bmp"));
    EXPECT_EQ(Parse({"kit", "a.bmp"}).Kit.Chosen.Fit, PhotoFit::Keep);
    EXPECT_EQ(Parse({"kit", "a.bmp", "--crop", "top"}).Kit.Chosen.Fit, PhotoFit::CropTop);
    EXPECT_EQ(Parse({"kit", "a.bmp", "--crop=top"}).Kit.Chosen.Fit, PhotoFit::CropTop);
    EXPECT_EQ(Parse({"kit", "a.bmp", "--crop", "--fit", "stretch"}).Kit.Chosen.Fit,
              PhotoFit::Stretch);
    for (const std::string_view center : {"center", "centre"}) {
        const Arguments arguments = Parse({"kit", "--crop", center, "top"});
        EXPECT_EQ(arguments.Kit.Chosen.Fit, PhotoFit::Crop);
        EXPECT_THAT(arguments.Kit.Photos, ElementsAre("top"));
        EXPECT_EQ(Parse({"kit", "top", "--crop=" + std::string(center)}).Kit.Chosen.Fit,
                  PhotoFit::Crop);
    }
}

TEST(Arguments, OtherCommandsAreTold) {
    EXPECT_EQ(Parse({}).What, Command::Window);
    EXPECT_EQ(Parse({"--folder", "x"}).What, Command::Window);
    EXPECT_EQ(Parse({"--folder", "x"}).Folder, "x");
    EXPECT_FALSE(Parse({"--folder", "x"}).InDocuments);
    EXPECT_TRUE(Parse({"--documents"}).InDocuments);
    EXPECT_EQ(Parse({"--documents", "Kits/a b.kit"}).File, "Kits/a b.kit");
    EXPECT_THROW((void)Parse({"a.kit", "b.kit"}), UsageError);
    EXPECT_EQ(Parse({"--help"}).What, Command::Help);
    EXPECT_EQ(Parse({"--version"}).What, Command::Version);
    EXPECT_EQ(Parse({"kit", "a.bmp", "--help"}).What, Command::KitHelp);
    EXPECT_EQ(Parse({"symbols"}).Folder, ".");
    EXPECT_EQ(Parse({"symbols", "--folder", "x"}).Folder, "x");
}

TEST(Arguments, CanvasAndPaperAreMeasuredInAnyUnit) {
    struct Case {
        const char* Canvas;
        double WidthCm;
        SizeMm Size;
        bool Inches;
    };
    for (const Case& c :
         {Case{"400mm", 40, {}, false}, Case{"16in", 40.64, {}, true},
          Case{"40x50cm", 0, {400, 500}, false}, Case{"40X50", 0, {400, 500}, false},
          Case{"16x20in", 0, {406.4, 508}, true}, Case{"auto", 0, {}, false}}) {
        const KitOptions kit = Parse({"kit", "a.bmp", "--canvas", c.Canvas}).Kit;
        EXPECT_DOUBLE_EQ(kit.Chosen.CanvasCm, c.WidthCm) << c.Canvas;
        EXPECT_EQ(kit.Plan.Canvas, c.Size) << c.Canvas;
        EXPECT_EQ(kit.Plan.InInches(), c.Inches) << c.Canvas;
    }
    const auto paper = [](const char* word) {
        return Parse({"kit", "a.bmp", "--paper", word}).Kit.Plan.Sheet;
    };
    EXPECT_EQ(paper("400x250mm"), (Paper{{250, 400}}));
    EXPECT_TRUE(paper("13x19in").Inches && paper("legal").Inches);
    EXPECT_TRUE(paper("canvas").IsCanvas());
}

TEST(Arguments, WrongUsageIsAnsweredWithASentenceThatNamesTheWord) {
    struct Case {
        std::initializer_list<std::string_view> Words;
        const char* Part;
    };
    const Case cases[] = {
        {{"paint"}, "\"paint\""},
        {{"--documents", "--folder", "x"}, "not by both"},
        {{"kit"}, "at least one photo"},
        {{"kit", "--json"}, "at least one photo"},
        {{"kit", "a.bmp", "--colour"}, "no option --colour"},
        {{"kit", "a.bmp", "-q"}, "no option -q"},
        {{"kit", "a.bmp", "--difficulty", "hard"}, "easy, medium or difficult"},
        {{"kit", "a.bmp", "--gray", "5"}, "from 10 to 100"},
        {{"kit", "a.bmp", "--difficulty"}, "--difficulty needs a value"},
        {{"kit", "a.bmp", "--folder="}, "--folder needs a value"},
        {{"kit", "a.bmp", "--final-paints", "17"}, "16, 32, 40 or 50"},
        {{"kit", "a.bmp", "--final-paints", "16x"}, "16, 32, 40 or 50"},
        {{"kit", "a.bmp", "--detail=101"}, "from 0 to 100"},
        {{"kit", "a.bmp", "--title=a/b"}, "without slashes"},
        {{"kit", "a.bmp", "b.bmp", "--title=c"}, "names one kit"},
        {{"kit", "a.bmp", "--sample=mean"}, "average or pixel"},
        {{"kit", "a.bmp", "--screen", "800"}, "WIDTHxHEIGHT"},
        {{"kit", "a.bmp", "--screen", "0x600"}, "WIDTHxHEIGHT"},
        {{"kit", "a.bmp", "--screen", "800x600x2"}, "WIDTHxHEIGHT"},
        {{"kit", "a.bmp", "--outputs", "sheet,poster"}, "\"poster\""},
        {{"kit", "a.bmp", "--crop=left"}, "center or top"},
        {{"kit", "a.bmp", "--fit", "squash"}, "keep, crop, top or stretch"},
        {{"kit", "a.bmp", "--paper", "A6"}, "A4, Letter, A3, A5, A2, A1, Legal, Tabloid, canvas"},
        {{"kit", "a.bmp", "--paper", "250mm"}, "140x140mm to 2000x2000mm"},
        {{"kit", "a.bmp", "--paper", "100x400"}, "140x140mm to 2000x2000mm"},
        {{"kit", "a.bmp", "--bleed", "20mm"}, "Add --paper canvas"},
        {{"kit", "a.bmp", "--paper=canvas", "--bleed", "101mm"}, "up to 100mm"},
        {{"kit", "a.bmp", "--canvas", "40x9cm"}, "40x50cm"},
        {{"kit", "a.bmp", "--canvas", "40x50x60"}, "40x50cm"},
        {{"kit", "a.bmp", "--canvas", "9cm"}, "10cm to 300cm"},
        {{"kit", "a.bmp", "--canvas", "nan"}, "10cm to 300cm"},
        {{"kit", "a.bmp", "--canvas", "60mm"}, "10cm to 300cm"},
        {{"kit", "a.bmp", "--accent=blue"}, "#1F5FA8"},
        {{"kit", "a.bmp", "--accent=#FFE040"}, "choose a darker color"},
        {{"kit", "a.bmp", "--field", "gift"}, "NAME=VALUE"},
        {{"kit", "a.bmp", "--order", "1\n2"}, "at most 100"},
        {{"kit", "a.bmp", "--address", "a|b|c|d|e|f|g"}, "one to six lines"},
        {{"kit", "a.bmp", "--json=yes"}, "--json takes no value"},
        {{"kit", "a.bmp", "--sets", "Oils", "--template", "Skin"}, "not by both"},
        {{"symbols", "a.bmp"}, "a.bmp"},
    };
    for (const Case& c : cases) {
        try {
            (void)Parse(c.Words);
            ADD_FAILURE() << "accepted; expected: " << c.Part;
        } catch (const UsageError& error) {
            EXPECT_THAT(error.what(), HasSubstr(c.Part));
        }
    }
}

}  // namespace
}  // namespace vendrel
