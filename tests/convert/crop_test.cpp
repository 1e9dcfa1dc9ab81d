#include "convert/crop.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "convert/crop_frame.h"
#include "convert/working_size.h"
#include "support/pictures.h"

namespace vendrel {
namespace {

const ScreenSize kDesk = ScreenSize::FromPixels(1920, 1080);
const ScreenSize kLaptop = ScreenSize::FromPixels(1366, 768);
const ScreenSize kFine = ScreenSize::FromPixels(2880, 1800, {10, 10});
const CropTarget kEasy{kDesk, 8};

std::vector<CropTarget> EveryTarget() {
    std::vector<CropTarget> targets;
    for (const ScreenSize& screen : {kDesk, kLaptop, kFine}) {
        for (const int stippleSize : {8, 6, 4}) {
            targets.push_back({screen, stippleSize});
        }
    }
    return targets;
}

double StretchOf(const CropRect& part, const CropTarget& target) {
    return SheetStretch({part.Width, part.Height}, target);
}

bool LiesInside(const CropRect& part, BitmapSize photo) {
    return part.Left >= 0 && part.Top >= 0 && part.Width > 0 && part.Height > 0 &&
           part.Left + part.Width <= photo.Width && part.Top + part.Height <= photo.Height;
}

TEST(Crop, EveryShapeEndsUnstretchedAtEveryDifficulty) {
    std::vector<BitmapSize> photos = {{3000, 3000}, {4032, 3024}, {3024, 4032}, {4096, 1000},
                                      {512, 600},   {640, 427},   {1000, 1001}, {200, 200}};
    std::mt19937 random(7);
    std::uniform_int_distribution<int> side(250, 4096);
    for (int i = 0; i < 60; ++i) {
        photos.push_back({side(random), side(random)});
    }
    for (const CropTarget& target : EveryTarget()) {
        for (const BitmapSize photo : photos) {
            SCOPED_TRACE(testing::Message() << photo.Width << " x " << photo.Height << ", "
                                            << target.StippleSize << " on " << target.Screen.Width);
            for (const CropRect& part : {CropCentre(photo, target), CropTop(photo, target)}) {
                EXPECT_LT(StretchOf(part, target), kUnstretched);
                EXPECT_TRUE(LiesInside(part, photo));
            }
            const BitmapSize easy = LargestCrop(photo, {target.Screen, 8});
            const BitmapSize size = LargestCrop(photo, target);
            EXPECT_TRUE(size == photo || easy == photo || size == easy) << "one crop for all";
        }
    }
}

TEST(Crop, CutsOffNoMoreThanTheShapeAsksFor) {
    EXPECT_EQ(LargestCrop({3000, 2400}, kEasy), (BitmapSize{3000, 2400}));
    EXPECT_EQ(CropCentre({3000, 3000}, kEasy).Width, 3000);
    EXPECT_NEAR(CropCentre({3000, 3000}, kEasy).Height, 2400, 12);
    EXPECT_NEAR(CropCentre({3000, 3000}, kEasy).Top, 300, 6);
    EXPECT_EQ(CropTop({3000, 3000}, kEasy).Top, 0);
    // A tall photo keeps lying on its short side.
    EXPECT_NEAR(CropTop({3000, 3600}, kEasy).Width, 2880, 15);
    EXPECT_EQ(CropTop({3000, 3600}, kEasy).Left, CropCentre({3000, 3600}, kEasy).Left);
    // Where a standing sheet may be nearly square, a square photo loses next to nothing.
    const CropRect standing = CropCentre({3000, 3000}, {kLaptop, 8});
    EXPECT_GT(standing.Width * standing.Height, 0.97 * 3000 * 3000);
    const CropRect usual = CropCentre({4032, 3024}, kEasy);
    EXPECT_GT(usual.Width * usual.Height, 0.99 * 4032 * 3024);
}

TEST(Crop, PhotosTooSmallForAnyShapeKeepTheLeastStretchedPart) {
    for (const BitmapSize photo : {BitmapSize{1, 1}, {5, 40}, {20, 20}, {33, 7}}) {
        EXPECT_TRUE(LiesInside(CropCentre(photo, kEasy), photo)) << photo.Width;
    }
}

TEST(Crop, CutsOutAndTurnsPixels) {
    const Surface photo = test::PictureOf({{0, 1, 2}, {10, 11, 12}});
    EXPECT_EQ(CutOut(photo, {1, 0, 2, 2}), test::PictureOf({{1, 2}, {11, 12}}));
    const Surface right = TurnedRight(photo, 1);
    EXPECT_EQ(right, test::PictureOf({{10, 0}, {11, 1}, {12, 2}}));
    EXPECT_EQ(TurnedRight(photo, 2), TurnedRight(right, 1));
    EXPECT_EQ(TurnedRight(photo, 3), TurnedRight(right, 2));
}

TEST(CropFrame, StaysInsideThePhotoAndInShapeWhateverIsDoneToIt) {
    for (const CropTarget& target : EveryTarget()) {
        CropFrame frame({1200, 1100}, target);
        std::mt19937 random(3);
        std::uniform_int_distribution<int> any(-300, 1500);
        for (int i = 0; i < 60; ++i) {
            frame.MoveBy(any(random) - 600, any(random) - 600);
            frame.DragCorner(static_cast<CropCorner>(i % 4), any(random), any(random));
            frame.GrowBy(any(random) / 10 - 60);
            if (i % 20 == 19) {
                frame.TurnPhoto(i % 40 == 39 ? Turn::Left : Turn::Right);
            }
            ASSERT_TRUE(LiesInside(frame.Rect(), frame.Photo())) << i;
            ASSERT_LT(StretchOf(frame.Rect(), target), kUnstretched) << i;
        }
    }
}

TEST(CropFrame, ADraggedCornerLeavesTheOppositeOneInPlace) {
    const auto edge = [](const CropRect& rect, bool left, bool top) {
        return std::pair(left ? rect.Left : rect.Left + rect.Width,
                         top ? rect.Top : rect.Top + rect.Height);
    };
    CropFrame frame({3000, 3000}, kEasy);
    for (const auto corner : {CropCorner::TopLeft, CropCorner::TopRight, CropCorner::BottomLeft,
                              CropCorner::BottomRight}) {
        const bool left = corner == CropCorner::TopLeft || corner == CropCorner::BottomLeft;
        const bool top = corner == CropCorner::TopLeft || corner == CropCorner::TopRight;
        frame = CropFrame({3000, 3000}, kEasy);
        const CropRect before = frame.Rect();
        frame.DragCorner(corner, left ? 1000 : 2000,
                         edge(before, left, top).second + (top ? 800 : -800));
        const CropRect after = frame.Rect();
        EXPECT_NEAR(after.Width, 2000, 30);
        EXPECT_LE(after.Width, 2010);
        EXPECT_EQ(edge(after, !left, !top), edge(before, !left, !top));
    }
    frame.DragCorner(CropCorner::TopLeft, 5000, 5000);
    EXPECT_GE(frame.Rect().Height, 60);
    EXPECT_LE(frame.Rect().Height, 140);
}

TEST(CropFrame, GrowsAndShrinksRoundItsMiddleByKeys) {
    CropFrame frame({3000, 3000}, kEasy);
    for (int i = 0; i < 10; ++i) {
        const int width = frame.Rect().Width;
        frame.GrowBy(-10);
        EXPECT_LE(frame.Rect().Width, width - 10);
        EXPECT_GT(frame.Rect().Width, width - 25);
    }
    EXPECT_NEAR(2 * frame.Rect().Left + frame.Rect().Width, 3000, 24);
    frame.MoveBy(-5000, 5000);
    EXPECT_EQ(frame.Rect().Left, 0);
    EXPECT_EQ(frame.Rect().Top + frame.Rect().Height, 3000);
}

TEST(CropFrame, ShowsTheTurnedPhoto) {
    CropFrame frame({600, 800}, kEasy);
    frame.TurnPhoto(Turn::Left);
    EXPECT_EQ(frame.Photo(), (BitmapSize{800, 600}));
    EXPECT_FALSE(frame.KeepsPhoto());
    Surface photo(600, 800, kWhite);
    photo.Set(300, 400, kBlack);
    const Surface part = frame.Apply(photo);
    EXPECT_EQ(part.Width(), frame.Rect().Width);
    EXPECT_EQ(part.Get(400 - frame.Rect().Left, 299 - frame.Rect().Top), kBlack);
}

}  // namespace
}  // namespace vendrel
