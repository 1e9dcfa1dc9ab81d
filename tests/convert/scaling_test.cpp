#include "convert/scaling.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "support/pictures.h"

namespace vendrel {
namespace {

using test::PictureOf;

Surface Noise(int width, int height) {
    std::minstd_rand random(static_cast<unsigned>(width * 1000 + height));
    return PictureOf(width, height,
                     [&](int, int) { return static_cast<Color>(random() & 0xFFFFFF); });
}

TEST(Scaling, ShrinksToTheAverageOfTheAreaCovered) {
    EXPECT_EQ(ScaleTo(PictureOf({{0, 100}, {50, 250}}), 1, 1), PictureOf({{100}}));
    // One and a half source pixels cover each target.
    EXPECT_EQ(ScaleTo(PictureOf({{0, 90, 240}}), 2, 1), PictureOf({{30, 190}}));
    EXPECT_EQ(ScaleTo(PictureOf({{0}, {90}, {240}}), 1, 2), PictureOf({{30}, {190}}));
}

TEST(Scaling, GrowsSmoothlyBetweenPixelCentres) {
    EXPECT_EQ(ScaleTo(PictureOf({{0, 200}}), 4, 1), PictureOf({{0, 50, 150, 200}}));
    EXPECT_EQ(ScaleTo(PictureOf({{77}}), 3, 5), Surface(3, 5, 77));
}

// Every pixel on its own, in the order of the formulas.
double Share(int from, int to, int target, int source) {
    if (from >= to) {
        const double begin = static_cast<double>(target) * from / to;
        const double end = (target + 1.0) * from / to;
        const double covered = std::min(end, source + 1.0) - std::max(begin, double(source));
        return std::max(0.0, covered) * to / from;
    }
    const double at = std::clamp((target + 0.5) * from / to - 0.5, 0.0, from - 1.0);
    return std::max(0.0, 1 - std::abs(at - source));
}

TEST(Scaling, AgreesWithThePlainSumForEveryPairOfSizes) {
    for (const auto& [fw, fh, w, h] : std::vector<std::array<int, 4>>{
             {7, 5, 3, 2}, {3, 2, 7, 5}, {7, 2, 3, 5}, {2, 7, 5, 3}, {9, 9, 9, 4}, {4, 1, 4, 6}}) {
        const Surface picture = Noise(fw, fh);
        const Surface scaled = ScaleTo(picture, w, h);
        for (int at = 0; at < w * h; ++at) {
            double red = 0;
            double green = 0;
            double blue = 0;
            for (int from = 0; from < fw * fh; ++from) {
                const double share =
                    Share(fw, w, at % w, from % fw) * Share(fh, h, at / w, from / fw);
                const Color color = picture.Get(from % fw, from / fw);
                red += share * RedOf(color);
                green += share * GreenOf(color);
                blue += share * BlueOf(color);
            }
            EXPECT_NEAR(RedOf(scaled.Get(at % w, at / w)), red, 0.5001);
            EXPECT_NEAR(GreenOf(scaled.Get(at % w, at / w)), green, 0.5001);
            EXPECT_NEAR(BlueOf(scaled.Get(at % w, at / w)), blue, 0.5001);
        }
    }
}

TEST(Scaling, GivesTheSamePixelsFromTheLowestRowUp) {
    const Surface picture = Noise(13, 7);
    EXPECT_EQ(ScaleTo(picture, 13, 7), picture);
    for (const auto& [w, h] : {std::pair{4, 3}, {30, 20}, {13, 7}, {20, 4}}) {
        RowScaler scaler({13, 7, w, h}, RowOrder::BottomUp);
        for (int y = 6; y >= 0; --y) {
            scaler.Push(picture.Row(y));
        }
        EXPECT_EQ(scaler.Take(), ScaleTo(picture, w, h));
    }
}

TEST(Scaling, MakesNothingOfNothing) {
    EXPECT_TRUE(ScaleTo(Surface(), 5, 5).Empty());
    EXPECT_TRUE(ScaleTo(Noise(2, 2), 0, 5).Empty());
}

}  // namespace
}  // namespace vendrel
