#include "convert/dib_section.h"

#include <gtest/gtest.h>

#include "shell/recorder.h"
#include "support/error.h"

namespace vendrel {
namespace {

cDIBSection Row(const std::vector<int>& reds) {
    Surface picture(static_cast<int>(reds.size()), 1);
    for (int x = 0; x < picture.Width(); ++x) {
        picture.Set(x, 0, Rgb(reds[static_cast<std::size_t>(x)], 10, 20));
    }
    cDIBSection image;
    EXPECT_TRUE(image.CreateFromPicture(picture));
    return image;
}

TEST(DibSection, FillsRowsUpToFourBytes) {
    for (const auto& [width, bytes] : {std::pair{1, 4}, {2, 8}, {3, 12}, {4, 12}}) {
        cDIBSection image;
        ASSERT_TRUE(image.Create(width, 3));
        EXPECT_EQ(image.BytesPerScanLine(), bytes);
        EXPECT_EQ(image.hDib()->SizeImage, static_cast<std::uint32_t>(bytes * 3));
    }
}

TEST(DibSection, IsEmptyWhenItCannotBeCreated) {
    cDIBSection image;
    image.ClearUp();
    ASSERT_TRUE(image.Create(2, 2));
    EXPECT_FALSE(image.Create(0, 5));
    EXPECT_EQ(image.hDib(), nullptr);
    EXPECT_TRUE(image.hdc().Empty());
    EXPECT_EQ(image.Width(), 0);
    EXPECT_FALSE(image.Create(5, -1));
    EXPECT_THROW(static_cast<void>(image.Create(26755, 1)), OverflowError);
    EXPECT_THROW(static_cast<void>(image.Create(20000, 40000)), OverflowError);
    image.Cls();
    image.RandomiseBits();
    EXPECT_EQ(image.Resample(2, 2), nullptr);
}

TEST(DibSection, StoresBlueGreenRedFromTheLowestRowUp) {
    Surface picture(1, 2, Rgb(1, 2, 3));
    picture.Set(0, 1, Rgb(4, 5, 6));
    cDIBSection image;
    ASSERT_TRUE(image.CreateFromPicture(picture));
    const std::uint8_t* bits = image.DIBSectionBitsPtr();
    EXPECT_EQ(std::vector(bits, bits + 8), (std::vector<std::uint8_t>{6, 5, 4, 0, 3, 2, 1, 0}));
    image.Cls();
    EXPECT_EQ(image.hdc().Get(0, 0), kBlack);
}

TEST(DibSection, CopiesPartsAndLeavesOutWhatLiesOutside) {
    cDIBSection image = Row({1, 2, 3, 4});
    Surface target(4, 1, kWhite);
    image.PaintPicture(target, 1, 0, {.X = 2, .Width = 5});
    EXPECT_EQ(RedOf(target.Get(1, 0)), 3);
    EXPECT_EQ(RedOf(target.Get(2, 0)), 4);
    EXPECT_EQ(target.Get(0, 0), kWhite);
    EXPECT_EQ(target.Get(3, 0), kWhite);

    const cDIBSection other = Row({9, 8});
    image.LoadPictureBlt(other.hdc(), {.X = 1});
    EXPECT_EQ(RedOf(image.hdc().Get(0, 0)), 8);
    EXPECT_EQ(RedOf(image.hdc().Get(1, 0)), 2);
}

TEST(DibSection, ResamplesDownwardsFirstWithHalvesToEven) {
    // Four from two: each step is a quarter of the way.
    const auto wide = Row({0, 100}).Resample(1, 4);
    ASSERT_NE(wide, nullptr);
    const std::vector<int> expected = {0, 25, 50, 75};
    for (int x = 0; x < 4; ++x) {
        EXPECT_EQ(RedOf(wide->hdc().Get(x, 0)), expected[static_cast<std::size_t>(x)]);
    }

    // Half-way down, 0.5 and 2.5 become 0 and 2; half-way across those lies 1. Across first, or
    // unrounded, it would be 2.
    Surface square(2, 2);
    square.Set(0, 1, 1);
    square.Set(1, 0, 2);
    square.Set(1, 1, 3);
    cDIBSection image;
    ASSERT_TRUE(image.CreateFromPicture(square));
    const auto blended = image.Resample(2, 4);
    EXPECT_EQ(RedOf(blended->hdc().Get(2, 0)), 1);
    EXPECT_EQ(RedOf(blended->hdc().Get(1, 0)), 0);  // a quarter of 2 is 0.5
}

TEST(DibSection, ResamplesToTheSameSizeAndFromOnePixel) {
    cDIBSection image;
    ASSERT_TRUE(image.Create(3, 2));
    image.RandomiseBits();
    const auto same = image.Resample(2, 3);
    for (int x = 0; x < 6; ++x) {
        EXPECT_EQ(same->hdc().Get(x % 3, x / 3), image.hdc().Get(x % 3, x / 3));
    }
    const auto grown = Row({77}).Resample(5, 3);  // height first
    EXPECT_EQ(grown->Width(), 3);
    EXPECT_EQ(grown->Height(), 5);
    EXPECT_EQ(grown->hdc().Get(2, 4), Rgb(77, 10, 20));
}

TEST(DibSection, GoesToTheClipboardAsAPictureOnly) {
    test::Recorder screen;
    EXPECT_FALSE(cDIBSection().CopyToClipboard(screen));
    const cDIBSection image = Row({5, 6});
    EXPECT_FALSE(image.CopyToClipboard(screen, ClipboardFormat::Dib));
    ASSERT_EQ(screen.Messages.size(), 1U);
    EXPECT_EQ(screen.Messages[0].first, "");
    EXPECT_EQ(screen.Messages[0].second,
              "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!");
    EXPECT_TRUE(screen.Clipboard.Empty());
    EXPECT_TRUE(image.CopyToClipboard(screen));
    EXPECT_EQ(screen.Clipboard.Get(1, 0), Rgb(6, 10, 20));
}

}  // namespace
}  // namespace vendrel
