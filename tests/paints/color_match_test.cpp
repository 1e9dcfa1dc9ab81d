#include "paints/color_match.h"

#include <gtest/gtest.h>

#include <cmath>

#include "paints/nearest_paint.h"
#include "paints/paints.h"

namespace vendrel {
namespace {

using test::Paint;

// The match in so many words: lengths in single precision, less or equal, ascending.
int PlainMatch(const std::vector<PaintColor>& paints, const Channels& color, int skip) {
    float best = std::sqrt(3.0F * 255.0F * 255.0F);
    int index = 0;
    for (std::size_t i = 1; i < paints.size(); ++i) {
        const float r = static_cast<float>(color.Red) - static_cast<float>(paints[i].Red);
        const float g = static_cast<float>(color.Green) - static_cast<float>(paints[i].Green);
        const float b = static_cast<float>(color.Blue) - static_cast<float>(paints[i].Blue);
        const float d = std::sqrt(r * r + g * g + b * b);
        if (static_cast<int>(i) != skip && d <= best) {
            best = d;
            index = static_cast<int>(i);
        }
    }
    return index;
}

TEST(ColorMatch, FindsTheNearestPaint) {
    const PaintColor black = Paint(0, 0, 0);
    const PaintColor white = Paint(255, 255, 255);
    struct Case {
        std::vector<PaintColor> Paints;
        int Grey;
        int Skip;
        int Index;  // -7 stays as it was
        int Matched;
    };
    const Case cases[] = {
        {{black, white}, 100, 0, 1, 0},
        {{Paint(10, 10, 10), Paint(20, 20, 20)}, 15, 0, 2, 20},  // a tie
        {{white}, 0, 0, 1, 255},                                 // the furthest counts
        {{black, white}, 0, 1, 2, 255},
        {{white}, 3, 1, -7, 3},
        {{}, 3, 0, -7, 3},
    };
    for (const Case& c : cases) {
        WorkState state;
        test::UsePaints(state, c.Paints);
        Channels color{c.Grey, c.Grey, c.Grey};
        int index = -7;
        ColorMatch(state, color.Red, color.Green, color.Blue, index, c.Skip);
        EXPECT_EQ(index, c.Index) << c.Grey;
        EXPECT_EQ(color, (Channels{c.Matched, c.Matched, c.Matched})) << c.Grey;
    }
}

TEST(ColorMatch, ChoosesAsSinglePrecisionDoesWhicheverWayItSearches) {
    std::mt19937 random(7);
    for (const int step : {1, 15, 51, 85}) {
        for (const int count : {0, 1, 2, 40, 300}) {
            WorkState state;
            test::UsePaints(state, test::RandomPaints(random, count, step));
            NearestPaintTable table(state.PaintColors);
            for (int n = 0; n < 400; ++n) {
                const PaintColor asked = test::RandomPaints(random, 1, n % 2 == 0 ? 1 : step)[0];
                const Channels color{asked.Red, asked.Green, asked.Blue};
                const int skip = n % 4 == 3 ? n % (count + 1) : 0;
                ASSERT_EQ(FindNearest(Palette(state), color, skip),
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
