#include "touchup/tools.h"

#include <gtest/gtest.h>

#include "sheets.h"
#include "touchup/clean_up.h"
#include "touchup/markers.h"
#include "touchup/touch_up.h"

namespace vendrel::test {
namespace {

using Path = std::vector<CellPos>;

TEST(Stroke, LeavesTheStampsOfTheBrushWithoutGapsAndIsOneStep) {
    struct Case {
        BrushSize Size;
        Path Pointer;
        Rows Expected;
        CellRect Dirty;  // of the whole stroke
    };
    const Case cases[] = {
        {BrushSize::One, {{3, 2}}, {"11111", "11211", "11111"}, {3, 2, 3, 2}},
        {BrushSize::Two, {{5, 1}}, {"11112", "11112", "11111"}, {5, 1, 5, 2}},
        {BrushSize::Three, {{1, 3}}, {"11111", "22111", "22111"}, {1, 2, 2, 3}},
        {BrushSize::One, {{1, 1}, {3, 3}}, {"21111", "12111", "11211"}, {1, 1, 3, 3}},
        {BrushSize::One, {{5, 2}, {1, 1}, {1, 3}}, {"22211", "21122", "21111"}, {1, 1, 5, 3}},
        {BrushSize::One, {{-2, 2}, {8, 2}}, {"11111", "22222", "11111"}, {1, 2, 5, 2}},
    };
    for (const Case& test : cases) {
        KitBench bench({"11111", "11111", "11111"});
        TouchUp editor(bench.Place);
        CellRect dirty = editor.BeginStroke(test.Pointer.front(), {test.Size, 2});
        for (const CellPos& at : test.Pointer) {
            const CellRect more = editor.StrokeTo(at);
            if (!more.Empty()) {
                dirty.Include({more.Left, more.Top});
                dirty.Include({more.Right, more.Bottom});
            }
        }
        EXPECT_EQ(bench.Edited(), test.Expected);
        EXPECT_EQ(dirty, test.Dirty);
        EXPECT_TRUE(bench.CountsAreTrue());
        EXPECT_EQ(editor.Undo(), test.Dirty);
        EXPECT_FALSE(editor.CanUndo());
        EXPECT_EQ(bench.State.EditStipples, bench.State.Stipples);
    }
}

TEST(Fill, RepaintsTheAreaLinkedThroughSidesAndCorners) {
    KitBench bench({"1221", "2112", "1222", "3333"});
    TouchUp editor(bench.Place);
    EXPECT_EQ(editor.Fill({2, 2}, 4), (CellRect{1, 1, 4, 3}));
    EXPECT_EQ(bench.Edited(), (Rows{"4224", "2442", "4222", "3333"}));
    editor.Replace(2, 3);
    EXPECT_EQ(bench.Edited(), (Rows{"4334", "3443", "4333", "3333"}));
    EXPECT_TRUE(bench.CountsAreTrue());
    EXPECT_EQ(bench.State.FoundCount, 9) << "a paint without stipples keeps its place";
}

TEST(Edits, ThatChangeNothingAreNoSteps) {
    KitBench bench({"12", "21"}, 2);
    TouchUp editor(bench.Place);
    EXPECT_TRUE(editor.BeginStroke({1, 1}, {BrushSize::One, 1}).Empty());
    EXPECT_TRUE(editor.BeginStroke({1, 1}, {BrushSize::One, 3}).Empty()) << "no such paint";
    EXPECT_TRUE(editor.Fill({0, 1}, 2).Empty());
    EXPECT_TRUE(editor.Fill({1, 1}, 1).Empty());
    EXPECT_TRUE(editor.Replace(1, 7).Empty());
    EXPECT_TRUE(editor.CleanUp().Empty());
    EXPECT_FALSE(editor.CanUndo());
    EXPECT_FALSE(editor.HasChanges());
}

TEST(CleanUp, RepaintsWhatItsPreviewAnnouncedInOneStep) {
    struct Case {
        int Level;
        Rows Before;
        Rows After;
        CleanUpPreview Preview;
    };
    // The areas are those of the search, which never steps into the last column or row from
    // inside: these count for themselves.
    const Case cases[] = {
        {8, {"1111", "1311", "1111", "1111"}, {"1111", "1111", "1111", "1111"}, {1, 4}},
        {8, {"2111", "1311", "1111", "1111"}, {"2111", "1311", "1111", "1111"}, {0, 6}},
        {7, {"2111", "1311", "1111", "1111"}, {"2111", "1111", "1111", "1111"}, {1, 5}},
        {6, {"222", "131", "111"}, {"222", "131", "111"}, {0, 7}},
        {5, {"222", "131", "111"}, {"222", "111", "111"}, {1, 4}},
        // Neighbours outside the grid count as none: a side has five, a corner three.
        {6, {"121", "111", "113"}, {"121", "111", "113"}, {0, 5}},
        {5, {"121", "111", "113"}, {"111", "111", "113"}, {1, 4}},
        {4, {"121", "111", "113"}, {"111", "111", "113"}, {1, 4}},
        {3, {"121", "111", "113"}, {"111", "111", "111"}, {2, 4}},
        // Every stipple goes by what its neighbours were before the pass.
        {2, {"12", "21"}, {"21", "12"}, {4, 4}},
        // Two paints would do: the one on more neighbours, then the lower index.
        {3, {"555", "434", "444"}, {"555", "444", "444"}, {1, 4}},
        {4, {"555", "536", "666"}, {"555", "556", "666"}, {1, 5}},
    };
    for (const Case& test : cases) {
        SCOPED_TRACE(testing::PrintToString(test.Before) + std::to_string(test.Level));
        KitBench bench(test.Before);
        bench.State.CleanLevel = test.Level;
        TouchUp editor(bench.Place);
        EXPECT_EQ(editor.PreviewCleanUp().Changes, test.Preview.Changes);
        EXPECT_EQ(editor.PreviewCleanUp().AreasLeft, test.Preview.AreasLeft);
        editor.CleanUp();
        EXPECT_EQ(bench.Edited(), test.After);
        EXPECT_TRUE(bench.CountsAreTrue());
        editor.Undo();
        EXPECT_EQ(bench.Edited(), test.Before);
    }
}

TEST(Markers, StepThroughTheLonersOfTheEditedGridAndStartOver) {
    // The last column gives no company from its left: of the two 1s only the inner one is alone.
    KitBench bench({"2311", "2222", "2522", "2222"});
    TouchUp editor(bench.Place);
    EXPECT_EQ(FindLoners(editor.Sheet()), (Path{{2, 1}, {3, 1}, {2, 3}}));
    EXPECT_EQ(FindStipplesOf(editor.Sheet(), 1), (Path{{3, 1}, {4, 1}}));
    EXPECT_EQ(NextLoner(editor.Sheet(), {3, 1})->At, (CellPos{2, 3}));
    EXPECT_EQ(NextLoner(editor.Sheet(), {2, 3})->At, (CellPos{2, 1}));
    EXPECT_EQ(NextLoner(editor.Sheet(), {2, 3})->Left, 3);
    editor.Fill({2, 3}, 2);
    editor.Fill({2, 1}, 2);
    EXPECT_EQ(NextLoner(editor.Sheet(), {0, 0})->Left, 1);
    editor.Fill({3, 1}, 2);
    EXPECT_FALSE(NextLoner(editor.Sheet(), {0, 0}));
}

}  // namespace
}  // namespace vendrel::test
