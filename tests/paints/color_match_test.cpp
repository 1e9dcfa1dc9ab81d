#include "paints/color_match.h"

#include <gtest/gtest.h>

#include <cmath>

#include "paints/nearest_paint.h"
#include "paints/paints.h"

namespace vendrel {
namespace {

using test::Paint;

// The match in so many words: lengths in single precision, less or equal, ascending.
int PlainMatch(const PaintList& paints, const Channels& color, int skip) {
    float best = std::sqrt(3.0F * 255.0F * 255.0F);
    int index = 0;
    for (int i = 1; i <= paints.Count(); ++i) {
        const float r = static_cast<float>(color.Red) - static_cast<float>(paints[i].Red);
        const float g = static_cast<float>(color.Green) - static_cast<float>(paints[i].Green);
        const float b = static_cast<float>(color.Blue) - static_cast<float>(paints[i].Blue);
        const float d = std::sqrt(r * r + g * g + b * b);
        if (i != skip && d <= best) {
            best = d;
            index = i;
        }
    }
    return index;
}

TEST(ColorMatch, FindsTheNearestPaint) {
    const PaintColor black = Paint(0, 0, 0);
    const PaintColor white = Paint(255, 255, 255);
    using Paints = PaintList;
    constexpr int kStays = -7;
    for (const auto& [paints, grey, skip, expected, matched] :
         {std::tuple{Paints{black, white}, 100, 0, 1, 0},
          {Paints{Paint(10, 10, 10), Paint(20, 20, 20)}, 15, 0, 2, 20},  // a tie
          {Paints{white}, 0, 0, 1, 255},                                 // the furthest counts
          {Paints{black, white}, 0, 1, 2, 255},
          {Paints{white}, 3, 1, kStays, 3},
          {Paints{}, 3, 0, kStays, 3}}) {
        WorkState state;
        SetPalette(state, paints);
        Channels color{grey, grey, grey};
        int index = kStays;
        ColorMatch(state, color.Red, color.Green, color.Blue, index, skip);
        EXPECT_EQ(index, expected) << grey;
        EXPECT_EQ(color, (Channels{matched, matched, matched})) << grey;
    }
}

TEST(ColorMatch, ChoosesAsSinglePrecisionDoesWhicheverWayItSearches) {
    std::mt19937 random(7);
    for (const int step : {1, 15, 51, 85}) {
        for (const int count : {0, 1, 2, 40, 300}) {
            WorkState state;
            SetPalette(state, test::RandomPaints(random, count, step));
            NearestPaintTable table(state.PaintColors);
            for (int n = 0; n < 400; ++n) {
                const PaintColor asked = test::RandomPaints(random, 1, n % 2 == 0 ? 1 : step)[1];
                const Channels color{asked.Red, asked.Green, asked.Blue};
                const int skip = n % 4 == 3 ? n % (count + 1) : 0;
                ASSERT_EQ(FindNearest(state.PaintColors, color, skip),
                          PlainMatch(state.PaintColors, color, skip));
                ASSERT_EQ(table.Find(color), PlainMatch(state.PaintColors, color, 0));
            }
        }
    }
}

TEST(ColorMatch, OrdersWholeSquaresAsTheirSinglePrecisionRoots) {
    for (int square = 1; square <= kLargestSquaredDistance; ++square) {
        ASSERT_LT(std::sqrt(static_cast<float>(square - 1)), std::sqrt(static_cast<float>(square)));
    }
}

}  // namespace
}  // namespace vendrel
