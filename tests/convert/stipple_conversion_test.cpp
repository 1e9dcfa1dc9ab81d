#include "convert/stipple_conversion.h"

#include <gmock/gmock.h>

#include "convert/cell_color.h"
#include "drawing/stipple_brush.h"
#include "paints/color_match.h"
#include "paints/paints.h"
#include "support/error.h"
#include "support/pictures.h"

namespace vendrel {
namespace {

using test::Paint;

/// A workplace with a photo of whole stipples on its work picture.
class Conversion : public test::Bench {
  public:
    Conversion(int stippleSize, int across, int down, Color color = kWhite) {
        SizeStipples(State, stippleSize);
        State.PictureWidth = across * stippleSize * 15;
        State.PictureHeight = down * stippleSize * 15;
        State.PictureName = "Lady";
        Frames.CaptureFrame.Picture = Surface(across * stippleSize, down * stippleSize, color);
    }
    Surface& Photo() { return Frames.CaptureFrame.Picture; }
    [[nodiscard]] const Surface& Drawn() const { return Frames.WorkFrame.Picture; }
};

TEST(AverageColor, RoundsHalvesToTheEvenNeighbourAndStopsAtTheEdge) {
    Surface photo(5, 5, Rgb(10, 0, 255));
    const auto average = [&photo](int left, int size) {
        const Channels c = AverageColor(photo, left, 1, size);
        return std::vector{c.Red, c.Green, c.Blue};
    };
    photo.FillRect(1, 1, 3, 2, Rgb(11, 1, 254));  // half of four pixels: 10.5, 0.5, 254.5
    EXPECT_EQ(average(1, 2), (std::vector{10, 0, 254}));
    photo.FillRect(1, 2, 3, 3, Rgb(12, 2, 253));  // 11.5, 1.5, 253.5
    EXPECT_EQ(average(1, 2), (std::vector{12, 2, 254}));
    EXPECT_EQ(average(3, 16), (std::vector{10, 0, 255}));
    photo.Set(4, 4, Rgb(10, 16, 255));  // 16 of 2 x 4 pixels
    EXPECT_EQ(average(3, 16), (std::vector{10, 2, 255}));
}

TEST(Stipples, TakeTheirColourFromTheirOwnPixels) {
    // One stipple: pixel row and column 0 belong to none, (5, 5) is the centre.
    for (const bool sampling : {false, true}) {
        Conversion bench(8, 1, 1, Rgb(200, 200, 200));
        bench.State.Chosen.Sample = sampling ? Sampling::Pixel : Sampling::Average;
        bench.Photo().FillRect(1, 1, 8, 8, Rgb(100, 100, 100));
        bench.Photo().Set(5, 5, Rgb(2, 2, 2));
        SetPalette(bench.State, {Paint(2, 2, 2, "centre"), Paint(98, 98, 98, "average"),
                                 Paint(120, 120, 120, "with the edge")});
        ChangeToStipples_Click(bench.Place);
        EXPECT_EQ(test::NamesOf(bench.State), sampling ? "centre" : "average");
        EXPECT_EQ(bench.State.Stipples(1, 1), (StippleCell{1, 5, 5, 0, {}}));
        EXPECT_TRUE(bench.Screen.HasCaption("Found 1 so far."));
        EXPECT_EQ(bench.Drawn().Get(0, 3), Rgb(200, 200, 200));
        EXPECT_EQ(bench.Drawn().Get(1, 1), kBlack);
        EXPECT_EQ(bench.Drawn(), bench.Frames.StippleFrame.Picture);
    }
}

// The conversion in so many words, one stipple and one paint at a time; the paints as they are
// found.
std::vector<std::string> PlainConversion(const Conversion& bench, const Surface& photo,
                                         PaintList& found) {
    const int size = bench.State.StippleSize;
    const bool sampling = bench.State.Chosen.Sample == Sampling::Pixel;
    std::vector<std::string> rows;
    for (int y = 1; y <= photo.Height(); y += size) {
        rows.emplace_back();
        for (int x = 1; x <= photo.Width(); x += size) {
            Channels color = sampling ? PixelColor(photo, x + size / 2, y + size / 2)
                                      : AverageColor(photo, x, y, size);
            int index = 0;
            ColorMatch(bench.State, color.Red, color.Green, color.Blue, index, 0);
            const PaintColor& paint = bench.State.PaintColors[index];
            const auto known = std::find_if(found.begin(), found.end(), [&](const auto& f) {
                return ColorOf(f) == ColorOf(paint);
            });
            rows.back() += static_cast<char>('1' + (known - found.begin()));
            if (known == found.end()) {
                found.Add(paint);
            }
        }
    }
    return rows;
}

TEST(Stipples, AreMatchedAsOneByOneAndLookTheSameUnwatched) {
    std::mt19937 random(5);
    for (int round = 0; round < 24; ++round) {
        Conversion bench(4 + 2 * (round % 3), 7, 5);
        bench.State.Chosen.Sample = round % 2 == 0 ? Sampling::Pixel : Sampling::Average;
        bench.State.KeepAllColors = round % 4 < 2;
        bench.State.FinalColors = 3;
        bench.Photo() =
            test::PictureOf(bench.Photo().Width(), bench.Photo().Height(),
                            [&](int, int) { return static_cast<Color>(random() & 0xFFFFFF); });
        SetPalette(bench.State, test::RandomPaints(random, 30, round % 5 == 0 ? 127 : 5));
        PaintList found;
        const auto rows = PlainConversion(bench, bench.Photo(), found);
        const auto palette = bench.State.PaintColors;
        ChangeToStipples_Click(bench.Place);
        if (bench.State.KeepAllColors) {
            ASSERT_EQ(test::GridOf(bench.State.Stipples), rows);
            ASSERT_EQ(bench.State.PaintColors, found);
        }
        ASSERT_LE(bench.State.PaintCount, bench.State.KeepAllColors ? 30 : 3);

        const Surface unwatched = bench.Drawn();
        const auto grid = bench.State.Stipples;
        SetPalette(bench.State, palette);
        bench.Screen.IsWatched = true;
        AutoChangeToStipples(bench.Place);
        ASSERT_EQ(bench.Drawn(), unwatched);
        ASSERT_EQ(bench.State.Stipples, grid);
    }
}

TEST(Stipples, TellTheirProgressAndOpenTheNextSteps) {
    Conversion bench(4, 3, 1, Rgb(9, 9, 9));
    bench.Photo().FillRect(5, 0, 9, 4, Rgb(90, 90, 90));
    bench.State.FinalColors = 1;
    SetPalette(bench.State, {Paint(0, 0, 1), Paint(80, 80, 80)});
    ChangeToStipples_Click(bench.Place);
    EXPECT_THAT(bench.Screen.Captions, testing::ElementsAre("Getting Colors", "Found 1 so far.",
                                                            "Matching Paint Sets to 2 Colors",
                                                            "Number of Paints Reduced to 1 Colors",
                                                            "Redrawing Stipples", "Vendrel -Lady"));
    EXPECT_EQ(bench.State.WorkStage, 1);
    EXPECT_TRUE(bench.State.StipplesMade);
    EXPECT_EQ(bench.State.FoundCount, 0);
    EXPECT_EQ(bench.State.CellMarks, Grid<CellMark>(3, 1));
    EXPECT_TRUE(bench.MainMenu[MenuId::PaintItNow].Enabled);
    EXPECT_TRUE(bench.MainMenu[MenuId::NextBestColors].Enabled);
    EXPECT_EQ(bench.Screen.LastPointer, Pointer::Normal);
}

TEST(Stipples, AreRefusedWithoutFinalPaintsOrPaints) {
    for (const auto& [finalColors, advice] :
         {std::pair{0, "choose Final Paints"}, {16, "Paint Shop"}}) {
        Conversion bench(8, 1, 1);
        bench.State.FinalColors = finalColors;
        EXPECT_THAT([&] { ChangeToStipples_Click(bench.Place); },
                    testing::ThrowsMessage<Error>(testing::HasSubstr(advice)));
        EXPECT_EQ(bench.State.WorkStage, 0);
        EXPECT_TRUE(bench.Drawn().Empty());
    }
    Conversion bench(8, 1, 1);
    bench.State.MasterColors = {Paint(1, 2, 3, "restored")};
    bench.State.PaintSets.Add({"Set", true});
    ChangeToStipples_Click(bench.Place);
    EXPECT_EQ(test::NamesOf(bench.State), "restored");
}

}  // namespace
}  // namespace vendrel
