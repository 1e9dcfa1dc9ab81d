#include "convert/scaling.h"

#include <gtest/gtest.h>

#include <random>

namespace vendrel {
namespace {

Surface Greys(const std::vector<std::vector<int>>& rows) {
    Surface picture(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            const int grey = rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            picture.Set(x, y, Rgb(grey, 255 - grey, grey / 2));
        }
    }
    return picture;
}

Surface Noise(int width, int height) {
    std::minstd_rand random(static_cast<unsigned>(width * 1000 + height));
    Surface picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (Color& pixel : picture.Row(y)) {
            pixel = static_cast<Color>(random() & 0xFFFFFF);
        }
    }
    return picture;
}

TEST(Scaling, ShrinksToTheAverageOfTheAreaCovered) {
    EXPECT_EQ(ScaleTo(Greys({{0, 100}, {50, 250}}), 1, 1), Greys({{100}}));
    // Two thirds of a source pixel and a third of its neighbour: one and a half cover each target.
    EXPECT_EQ(RedOf(ScaleTo(Greys({{0, 90, 240}}), 2, 1).Get(0, 0)), 30);
    EXPECT_EQ(RedOf(ScaleTo(Greys({{0, 90, 240}}), 2, 1).Get(1, 0)), 190);
    EXPECT_EQ(RedOf(ScaleTo(Greys({{0}, {90}, {240}}), 1, 2).Get(0, 1)), 190);
}

TEST(Scaling, GrowsSmoothlyBetweenPixelCentres) {
    const Surface grown = ScaleTo(Greys({{0, 200}}), 4, 1);
    EXPECT_EQ(RedOf(grown.Get(0, 0)), 0);
    EXPECT_EQ(RedOf(grown.Get(1, 0)), 50);
    EXPECT_EQ(RedOf(grown.Get(2, 0)), 150);
    EXPECT_EQ(RedOf(grown.Get(3, 0)), 200);
    EXPECT_EQ(ScaleTo(Greys({{77}}), 3, 5), Greys(std::vector(5, std::vector(3, 77))));
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
        for (int y = 0; y < h; ++y) {
            for (int x = 0; x < w; ++x) {
                double red = 0;
                double blue = 0;
                for (int sy = 0; sy < fh; ++sy) {
                    for (int sx = 0; sx < fw; ++sx) {
                        const double share = Share(fw, w, x, sx) * Share(fh, h, y, sy);
                        red += share * RedOf(picture.Get(sx, sy));
                        blue += share * BlueOf(picture.Get(sx, sy));
                    }
                }
                EXPECT_NEAR(RedOf(scaled.Get(x, y)), red, 0.5001);
                EXPECT_NEAR(BlueOf(scaled.Get(x, y)), blue, 0.5001);
            }
        }
    }
}

TEST(Scaling, KeepsTheSameSizeExactly) {
    const Surface picture = Noise(13, 7);
    EXPECT_EQ(ScaleTo(picture, 13, 7), picture);
}

TEST(Scaling, GivesTheSamePixelsFromTheLowestRowUp) {
    for (const auto& [w, h] : {std::pair{4, 3}, {30, 20}, {13, 7}, {20, 4}}) {
        const Surface picture = Noise(13, 7);
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
