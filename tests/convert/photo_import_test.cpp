#include "convert/photo_import.h"

#include <gmock/gmock.h>

#include <cmath>
#include <random>

#include "convert/bitmap_writer.h"
#include "convert/bmp_bytes.h"
#include "convert/scaling.h"
#include "convert/settings.h"
#include "shell/recorder.h"
#include "support/error.h"
#include "support/pictures.h"

namespace vendrel {
namespace {

using test::Bench;
using test::BmpBytes;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::ThrowsMessage;

const ScreenSize kScreen = ScreenSize::FromPixels(1920, 1080);

TEST(WorkingSize, FitsPhotosOfAllShapes) {
    struct Case {
        BitmapSize Photo;
        ScreenSize Screen;
        int Stipple;
        bool Landscape;
        int Width;  // pixels
        int Height;
    };
    const Case cases[] = {
        {{960, 720}, kScreen, 8, true, 960, 720},
        {{720, 960}, kScreen, 8, false, 720, 960},
        {{500, 500}, kScreen, 8, true, 960, 768},    // square: landscape, cut to eight inches
        {{4000, 3000}, kScreen, 6, true, 960, 714},  // 267 by 200 is flatter than 4 by 3
        {{1600, 900}, kScreen, 6, true, 960, 534},   // 107 / 60 after rounding: 538.3 pixels
        {{1600, 900}, kScreen, 4, true, 960, 536},
        {{960, 720}, ScreenSize::FromPixels(800, 600), 8, true, 792, 464},  // the window must fit
        {{720, 960}, ScreenSize::FromPixels(800, 600), 8, false, 440, 592},
        {{960, 720}, ScreenSize::FromPixels(8000, 4000), 8, true, 960, 720},
        {{10000, 10}, kScreen, 8, true, 960, 0},  // too flat for a stipple
        {{7, 7}, kScreen, 8, true, 960, 0},       // too small for a shape
        {{960, 720}, ScreenSize::FromPixels(100, 100), 8, true, 96, 0},
    };
    for (const Case& c : cases) {
        const WorkingSize size = ComputeWorkingSize(c.Photo, c.Screen, c.Stipple);
        EXPECT_EQ(size.Landscape, c.Landscape);
        EXPECT_EQ(size.Width, c.Width * 15) << c.Photo.Width << " x " << c.Photo.Height;
        EXPECT_EQ(size.Height, c.Height * 15) << c.Photo.Width << " x " << c.Photo.Height;
        EXPECT_EQ(size.HoldsStipples(), c.Height > 0);
    }
    const WorkingSize size = ComputeWorkingSize({960, 720}, kScreen, 8);
    EXPECT_EQ(size.Window.Width, 28785);
    EXPECT_EQ(ComputeWorkingSize({720, 960}, kScreen, 8).Window.Width, 10800 + 200);
}

// The height of a landscape picture shrunk a twip at a time, as long as the window is too high.
int HeightByLoop(const WorkingSize& size, const ScreenSize& screen, int stipple) {
    double height = static_cast<double>(size.Width) * size.AspectHeight / size.AspectWidth;
    const int below = 1950 + 5 * screen.Twips.Y;
    while (std::nearbyint(height + below) > screen.Height) {
        height -= 1;
    }
    const int step = stipple * screen.Twips.Y;
    return std::min(static_cast<int>(std::floor(height / step)) * step, 11520);
}

TEST(WorkingSize, AgreesWithShrinkingTwipByTwip) {
    std::minstd_rand random(3);
    for (int round = 0; round < 5000; ++round) {
        const int stipple = 4 + 2 * static_cast<int>(random() % 3);
        const int photoHeight = 40 + static_cast<int>(random() % 860);
        ScreenSize screen = ScreenSize::FromPixels(1000, 300);
        screen.Height += static_cast<int>(random() % 15000);
        const auto size = ComputeWorkingSize({901, photoHeight}, screen, stipple);
        ASSERT_EQ(size.Height, HeightByLoop(size, screen, stipple))
            << photoHeight << " on " << screen.Height << " by " << stipple;
    }
}

TEST(WorkingSize, RefusesWindowsPastSixteenBits) {
    // Flat pixels: a square photo becomes three times as high as wide, in twips.
    const ScreenSize screen = ScreenSize::FromPixels(2000, 4000, {30, 10});
    EXPECT_THROW((void)ComputeWorkingSize({900, 900}, screen, 8), OverflowError);
}

TEST(WorkingSize, TellsHowFarAPhotoIsStretched) {
    EXPECT_DOUBLE_EQ(StretchPercent({960, 720}, {960, 720}), 0);
    EXPECT_DOUBLE_EQ(StretchPercent({100, 100}, {960, 768}), 25);
    EXPECT_DOUBLE_EQ(StretchPercent({100, 100}, {768, 960}), 25);
}

/// A workplace with a photo in its folder of pictures.
class PhotoImport : public testing::Test {
  protected:
    PhotoImport() { WriteBitmap(bench_.Files / "pictures/my.holiday.bmp", photo_); }
    PhotoLoad Load(std::string_view name) {
        EXPECT_TRUE(ChoosePhoto(bench_.State, bench_.Program, name));
        return LoadNewPicture(bench_.Place);
    }

    Bench bench_;
    WorkState& state_ = bench_.State;
    Surfaces& frames_ = bench_.Frames;
    const Surface photo_ = test::PictureOf(200, 150, [](int x, int y) { return Rgb(x, y, 99); });
};

TEST_F(PhotoImport, SetsUpTheWorkArea) {
    frames_.CaptureFrame.Visible = true;
    EXPECT_EQ(Load("my.holiday.bmp"), PhotoLoad::Loaded);

    EXPECT_EQ(state_.PictureName, "my");
    EXPECT_EQ(state_.PictureFile, "my.holiday.bmp");
    EXPECT_EQ(state_.PicturesFolder, (bench_.Files / "pictures/").string());
    EXPECT_EQ(state_.PicturePath, (bench_.Files / "pictures/my.holiday.bmp").string());
    EXPECT_TRUE(state_.PictureLoaded);
    EXPECT_TRUE(state_.Landscape);
    EXPECT_THAT((std::array{state_.BmpWidth, state_.BmpHeight}), ElementsAre(200, 150));
    EXPECT_THAT((std::array{state_.AspectWidth, state_.AspectHeight}), ElementsAre(13, 10));
    EXPECT_EQ(state_.PictureWidth, 14400);
    EXPECT_EQ(state_.PictureHeight, 11040);
    EXPECT_TRUE(frames_.WorkFrame.Visible);
    EXPECT_FALSE(frames_.CaptureFrame.Visible);
    EXPECT_EQ(frames_.MainWindow.Height, 11040 + 1950 + 75);
    EXPECT_EQ(frames_.WorkFrame.Picture, ScaleTo(photo_, 960, 736));
    EXPECT_EQ(state_.PixelMap, Grid<MapPixel>(960, 736));
    EXPECT_THAT(bench_.Screen.Captions, ElementsAre("Vendrel - my"));

    frames_.WorkFrame.Picture.Fill(kBlack);
    RefreshPhotoImage(bench_.Frames, bench_.Screen);
    EXPECT_EQ(frames_.WorkFrame.Picture, ScaleTo(photo_, 960, 736));
}

TEST_F(PhotoImport, LeavesThingsAsTheyWereWhenThePhotoIsBroken) {
    (void)Load("my.holiday.bmp");
    const Surface before = frames_.WorkFrame.Picture;
    const BmpBytes flat{.Width = 600, .Pixels = std::vector<int>(1800)};
    const std::pair<const char*, std::string> broken[] = {
        {"cut.bmp", bench_.Files.Read("pictures/my.holiday.bmp").substr(0, 9000)},
        {"flat.bmp", flat.Make()},
    };
    for (const auto& [name, bytes] : broken) {
        bench_.Files.Write(std::string("pictures/") + name, bytes);
        const auto load = [this, photo = name] { (void)Load(photo); };
        EXPECT_THAT(load, ThrowsMessage<Error>(HasSubstr(name)));
        EXPECT_EQ(frames_.WorkFrame.Picture, before);
        EXPECT_EQ(state_.BmpWidth, 200);
        EXPECT_EQ(state_.PictureHeight, 11040);
        EXPECT_TRUE(state_.PictureLoaded);
    }
}

TEST_F(PhotoImport, LoadsNothingOfAnEmptyPictureOrANameWithoutADot) {
    bench_.Files.Write("pictures/empty.bmp", BmpBytes{.Width = 0, .Height = 0}.Make());
    EXPECT_EQ(Load("empty.bmp"), PhotoLoad::Nothing);
    EXPECT_FALSE(state_.PictureLoaded);
    EXPECT_TRUE(bench_.Screen.Captions.empty());

    state_ = {};
    EXPECT_FALSE(ChoosePhoto(bench_.State, bench_.Program, "holiday"));
    EXPECT_EQ(state_.PictureFile, "holiday");
    EXPECT_TRUE(state_.PicturePath.empty());
}

TEST_F(PhotoImport, FollowsTheStippleSize) {
    SetStippleSize(bench_.Place, 6);
    EXPECT_EQ(state_.HalfStipple, 3);
    EXPECT_EQ(state_.StippleCheck, 3);
    EXPECT_TRUE(frames_.WorkFrame.Picture.Empty());

    (void)Load("my.holiday.bmp");
    EXPECT_EQ(state_.PictureHeight, 11070);  // 123 stipples of 6 pixels
    state_.PixelMap(5, 5).ColorIndex = 7;
    SetStippleSize(bench_.Place, 8);
    EXPECT_EQ(state_.StippleCheck, 4);
    EXPECT_EQ(state_.PictureHeight, 11040);
    EXPECT_EQ(state_.PixelMap(5, 5), MapPixel{});

    std::filesystem::remove(state_.PicturePath);
    EXPECT_THROW(SetStippleSize(bench_.Place, 4), FileError);
    EXPECT_EQ(state_.StippleSize, 8);
}

}  // namespace
}  // namespace vendrel
