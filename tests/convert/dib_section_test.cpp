#include "convert/dib_section.h"

#include <gtest/gtest.h>

#include "shell/recorder.h"
#include "support/error.h"
#include "support/pictures.h"

namespace vendrel {
namespace {

using test::PictureOf;

cDIBSection ImageOf(const std::vector<std::vector<Color>>& rows) {
    cDIBSection image;
    EXPECT_TRUE(image.CreateFromPicture(PictureOf(rows)));
    return image;
}

Surface Shown(const cDIBSection& image) {
    return PictureOf(image.Width(), image.Height(),
                     [&](int x, int y) { return image.hdc().Get(x, y); });
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
    EXPECT_THROW((void)image.Create(26755, 1), OverflowError);
    EXPECT_THROW((void)image.Create(20000, 40000), OverflowError);
    image.Cls();
    image.RandomiseBits();
    EXPECT_EQ(image.Resample(2, 2), nullptr);
}

TEST(DibSection, CopiesPartsAndLeavesOutWhatLiesOutside) {
    cDIBSection image = ImageOf({{1, 2, 3, 4}});
    Surface target(4, 1, kWhite);
    image.PaintPicture(target, 1, 0, {.X = 2, .Width = 5});
    EXPECT_EQ(target, PictureOf({{kWhite, 3, 4, kWhite}}));
    const cDIBSection other = ImageOf({{9, 8}});
    image.LoadPictureBlt(other.hdc(), {.X = 1});
    EXPECT_EQ(Shown(image), PictureOf({{8, 2, 3, 4}}));
    image.Cls();
    EXPECT_EQ(Shown(image), Surface(4, 1, kBlack));
}

TEST(DibSection, ResamplesDownwardsFirstWithHalvesToEven) {
    // Four from two: each step is a quarter of the way.
    EXPECT_EQ(Shown(*ImageOf({{0, 100}}).Resample(1, 4)), PictureOf({{0, 25, 50, 75}}));
    // Half-way down, 0.5 and 2.5 become 0 and 2; half-way across those lies 1. Across first, or
    // unrounded, it would be 2. A quarter of 2 is 0.5.
    const Surface blended = Shown(*ImageOf({{0, 2}, {1, 3}}).Resample(2, 4));
    EXPECT_EQ(blended.Get(2, 0), 1);
    EXPECT_EQ(blended.Get(1, 0), 0);
}

TEST(DibSection, ResamplesToTheSameSizeAndFromOnePixel) {
    cDIBSection image;
    ASSERT_TRUE(image.Create(3, 2));
    image.RandomiseBits();
    EXPECT_EQ(Shown(*image.Resample(2, 3)), Shown(image));
    const Color color = Rgb(77, 10, 20);
    EXPECT_EQ(Shown(*ImageOf({{color}}).Resample(5, 3)), Surface(3, 5, color)) << "height first";
}

TEST(DibSection, GoesToTheClipboardAsAPictureOnly) {
    test::Recorder screen;
    EXPECT_FALSE(cDIBSection().CopyToClipboard(screen));
    const cDIBSection image = ImageOf({{5, 6}});
    EXPECT_FALSE(image.CopyToClipboard(screen, ClipboardFormat::Dib));
    ASSERT_EQ(screen.Messages.size(), 1U);
    EXPECT_EQ(screen.Messages[0].first, "");
    EXPECT_EQ(screen.Messages[0].second,
              "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!");
    EXPECT_TRUE(screen.Clipboard.Empty());
    EXPECT_TRUE(image.CopyToClipboard(screen));
    EXPECT_EQ(screen.Clipboard, PictureOf({{5, 6}}));
}

}  // namespace
}  // namespace vendrel
