#include "paints/reduction.h"

#include <gtest/gtest.h>

#include "paints/color_match.h"
#include "paints/paints.h"
#include "support/error.h"

namespace vendrel {
namespace {

using Rows = std::vector<std::string>;
using test::Paint;

// The reduction in so many words: for every paint dropped, the grid is counted, repainted and
// renumbered.
void PlainReduce(WorkState& state, int target, std::vector<std::string>& captions) {
    while (state.PaintCount > target) {
        CountColors(state, state);
        const int k = GetLowCount(state);
        PaintColor gone = state.PaintColors[k];
        int r = 0;
        ColorMatch(state, gone.Red, gone.Green, gone.Blue, r, k);
        for (StippleCell& cell : state.Stipples.All()) {
            cell.ColorIndex = cell.ColorIndex == k ? r : cell.ColorIndex;
        }
        PaintList left = state.PaintColors;
        left.Remove(k);
        SetPalette(state, left);
        for (StippleCell& cell : state.Stipples.All()) {
            cell.ColorIndex -= cell.ColorIndex > k ? 1 : 0;
        }
        captions.push_back("Number of Paints Reduced to " + std::to_string(state.PaintCount) +
                           " Colors");
    }
}

TEST(ReduceColors, DropsTheLeastUsedPaintAndRepaintsItsStipples) {
    // a and b are close, so are c and d; e is far from all.
    const PaintList paints = {Paint(10, 0, 0, "a"), Paint(20, 0, 0, "b"), Paint(0, 100, 0, "c"),
                              Paint(0, 110, 0, "d"), Paint(0, 0, 255, "e")};
    struct Case {
        const char* What;
        Rows Before;
        int Target;
        Rows After;
        const char* Names;
    };
    const Case cases[] = {
        {"enough already", {"12345"}, 5, {"12345"}, "a b c d e"},
        {"unused first", {"11344"}, 3, {"11233"}, "a c d"},
        {"into a later paint", {"122334455"}, 4, {"111223344"}, "b c d e"},
        {"the lower of equals", {"11223455"}, 4, {"11223344"}, "a b d e"},
        {"the last paint", {"112233445"}, 4, {"112233441"}, "a b c d"},
        {"takes in, then stays", {"1223344455"}, 3, {"1112222233"}, "b d e"},
        {"counts up to a bare stipple", {"12033", "34455"}, 2, {"12011", "11111"}, "a b"},
        {"down to nothing", {"12345"}, 0, {"00000"}, ""},
    };
    for (const Case& c : cases) {
        test::Bench bench;
        SetPalette(bench.State, paints);
        test::UseGrid(bench.State, c.Before);
        ReduceColors(bench.State, bench.State, bench.Screen, c.Target);
        EXPECT_EQ(test::GridOf(bench.State.Stipples), c.After) << c.What;
        EXPECT_EQ(test::NamesOf(bench.State), c.Names) << c.What;
        EXPECT_EQ(bench.State.PaintColors.Count(), c.Target) << c.What;
        EXPECT_EQ(bench.Screen.Captions.size(), static_cast<std::size_t>(5 - c.Target)) << c.What;
    }
}

TEST(ReduceColors, AgreesWithCountingAfreshForEveryPaint) {
    std::mt19937 random(11);
    for (int round = 0; round < 120; ++round) {
        const int count = 2 + round % 20;
        test::Bench bench;
        SetPalette(bench.State, test::RandomPaints(random, count, round % 2 == 0 ? 85 : 5));
        std::uniform_int_distribution<int> index(round % 3 == 0 ? 0 : 1, count);
        Rows rows(static_cast<std::size_t>(1 + round % 5), std::string(17, '0'));
        for (std::string& row : rows) {
            for (char& cell : row) {
                cell = static_cast<char>('0' + std::min(index(random), index(random)));
            }
        }
        test::UseGrid(bench.State, rows);
        bench.State.Stipples(1, 1).X = 5;
        WorkState plain = bench.State;
        std::vector<std::string> captions;
        const int target = round % count;
        PlainReduce(plain, target, captions);
        ReduceColors(bench.State, bench.State, bench.Screen, target);
        ASSERT_EQ(bench.State.Stipples, plain.Stipples);
        ASSERT_EQ(bench.State.PaintColors, plain.PaintColors);
        ASSERT_EQ(bench.State.PaintCount, plain.PaintCount);
        ASSERT_EQ(bench.State.ColorCounts, plain.ColorCounts);
        ASSERT_EQ(bench.Screen.Captions, captions);
    }
}

TEST(ReduceColors, StopsWithWhatWasDoneWhenACounterIsFull) {
    // Paint a takes in paint b and then covers one stipple more than can be counted, which matters
    // only if another paint has to go.
    for (const int target : {2, 1}) {
        test::Bench bench;
        SetPalette(bench.State,
                   {Paint(10, 0, 0, "a"), Paint(11, 0, 0, "b"), Paint(250, 0, 0, "c")});
        test::UseGrid(bench.State, {std::string(32767, '1') + "233"});
        if (target == 2) {
            ReduceColors(bench.State, bench.State, bench.Screen, target);
        } else {
            EXPECT_THROW(ReduceColors(bench.State, bench.State, bench.Screen, target),
                         OverflowError);
        }
        EXPECT_EQ(test::NamesOf(bench.State), "a c");
        EXPECT_EQ(bench.State.Stipples(32768, 1).ColorIndex, 1);
        EXPECT_EQ(bench.State.Stipples(32769, 1).ColorIndex, 2);
        EXPECT_EQ(bench.Screen.Captions.size(), 1U);

        bench.State.Stipples(32768, 1).ColorIndex = 1;  // full from the beginning
        EXPECT_THROW(ReduceColors(bench.State, bench.State, bench.Screen, 1), OverflowError);
        EXPECT_EQ(test::NamesOf(bench.State), "a c");
    }
}

TEST(RemoveColor, MovesLaterPaintsUp) {
    WorkState state;
    SetPalette(state, {Paint(0, 0, 0, "a"), Paint(90, 0, 0, "b"), Paint(100, 0, 0, "c")});
    test::UseGrid(state, {"123", "021"});
    RemoveColor(state, state, 2);
    EXPECT_EQ(test::GridOf(state.Stipples), (Rows{"122", "021"}));
    EXPECT_EQ(test::NamesOf(state), "a c");
}

}  // namespace
}  // namespace vendrel
