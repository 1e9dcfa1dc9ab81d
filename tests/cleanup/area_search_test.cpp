#include "cleanup/area_search.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cleanup/area_search.h"
#include "cleanup/cell_marking.h"
#include "cleanup/cells_by_paint.h"
#include "cleanup/paint_bench.h"
#include "support/counter.h"

namespace vendrel {
namespace {

using test::PaintBench;
using Rows = std::vector<std::string>;

void MarkAll(PaintBench& easel) {
    WorkState& state = easel.State;
    const CellsByPaint cells(state.Stipples, state.PaintCount);
    state.TestCells = CellQueue(state.CellsAcross, state.CellsDown);
    PassProgress progress(easel.Screen, cells.CellCount());
    for (int p = 1; p <= state.PaintCount; ++p) {
        MarkCells(EaselOf(easel.Place), easel.State, easel.State, cells.Of(p), progress);
    }
}

// Area numbers as letters, loners in capitals.
Rows Areas(const WorkState& state) {
    Rows rows;
    for (int y = 1; y <= state.CellsDown; ++y) {
        std::string& row = rows.emplace_back();
        for (int x = 1; x <= state.CellsAcross; ++x) {
            EXPECT_EQ(state.Stipples(x, y).AreaNumber, state.CellMarks(x, y).AreaNumber);
            const char first = state.CellMarks(x, y).Loner ? 'A' : 'a';
            row += static_cast<char>(first + state.Stipples(x, y).AreaNumber - 1);
        }
    }
    return rows;
}

TEST(AreaSearch, NumbersAreasByPaintThenByFirstCell) {
    const struct {
        const char* what;
        Rows grid;
        Rows areas;
        int count;
    } cases[] = {
        {"corners join, a lone cell stays alone",
         {"21222", "12222", "22232", "22222"},
         {"babbc", "abbbc", "bbbFc", "dddde"},
         6},
        {"the last column is not entered eastward, but followed down",
         {"2111", "2111", "2221", "2222"},
         {"caab", "caab", "cccb", "ddde"},
         5},
        {"a seed beside the last column takes it along",
         {"2211", "2211", "2222"},
         {"bbaa", "bbaa", "cccd"},
         4},
        {"the last row is not entered downward, its cells start areas of their own",
         {"222", "122", "122", "122"},
         {"ccd", "acd", "acd", "bee"},
         5},
    };
    for (const auto& c : cases) {
        PaintBench easel(8, c.grid);
        MarkAll(easel);
        EXPECT_EQ(Areas(easel.State), c.areas) << c.what;
        EXPECT_EQ(easel.State.NextAreaNumber, c.count + 1) << c.what;
        EXPECT_EQ(CountAreas(easel.State.Stipples), c.count) << c.what;
    }
}

TEST(AreaSearch, RedrawingTellsLonersFromCellsWithCompany) {
    PaintBench easel(8, {"222", "212", "222"});
    easel.State.CellMarks(1, 1).Loner = true;  // left over from before it had company
    const CellsByPaint cells(easel.State.Stipples, easel.State.PaintCount);
    RedrawLoners(EaselOf(easel.Place), easel.State, 1, cells.Of(1), BrushShape::Square);
    RedrawLoners(EaselOf(easel.Place), easel.State, 2, cells.Of(2), BrushShape::Square);
    EXPECT_TRUE(easel.State.CellMarks(2, 2).Loner);
    EXPECT_FALSE(easel.State.CellMarks(1, 1).Loner);
    EXPECT_EQ(easel.Work().Get(9, 9), easel.Paint(1));
    EXPECT_EQ(easel.State.PixelMap(9, 9).ColorIndex, 1);
    EXPECT_EQ(easel.Work().Get(1, 1), kWhite);
}

TEST(AreaSearch, MoreAreasThanACounterHoldsAreAnError) {
    PaintBench easel(4, {"12", "21"});
    easel.State.NextAreaNumber = kMaxCounter;
    EXPECT_THROW(MarkAll(easel), OverflowError);
}

}  // namespace
}  // namespace vendrel
