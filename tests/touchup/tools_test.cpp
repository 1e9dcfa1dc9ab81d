#include "touchup/tools.h"

#include <gtest/gtest.h>

#include "edits/lay_edits.h"
#include "sheets.h"
#include "support/error.h"
#include "touchup/cell_patch.h"
#include "touchup/clean_up.h"
#include "touchup/markers.h"
#include "touchup/selecting.h"
#include "touchup/touch_up.h"

namespace vendrel::test {
namespace {

using Path = std::vector<CellPos>;

TEST(Stroke, LeavesTheStampsOfTheBrushWithoutGapsAndIsOneStep) {
    struct Case {
        EditBrush Brush;
        Path Pointer;
        Rows Expected;
        CellRect Dirty;  // of the whole stroke
    };
    const Case cases[] = {
        {{1, 2}, {{3, 2}}, {"11111", "11211", "11111"}, {3, 2, 3, 2}},
        {{2, 2}, {{5, 1}}, {"11112", "11112", "11111"}, {5, 1, 5, 2}},
        {{3, 2}, {{1, 3}}, {"11111", "22111", "22111"}, {1, 2, 2, 3}},
        {{1, 2}, {{1, 1}, {3, 3}}, {"21111", "12111", "11211"}, {1, 1, 3, 3}},
        {{1, 2}, {{5, 2}, {1, 1}, {1, 3}}, {"22211", "21122", "21111"}, {1, 1, 5, 3}},
        {{1, 2}, {{-2, 2}, {8, 2}}, {"11111", "22222", "11111"}, {1, 2, 5, 2}},
        {{3, 2, true}, {{2, 2}}, {"12111", "22211", "12111"}, {1, 1, 3, 3}},
        {{5, 2, true}, {{3, 1}}, {"22222", "22222", "12221"}, {1, 1, 5, 3}},
        {{9, 2, true}, {{-2, 2}}, {"22111", "22111", "22111"}, {1, 1, 2, 3}},
    };
    for (const Case& test : cases) {
        KitBench bench({"11111", "11111", "11111"});
        TouchUp editor(bench.Place);
        CellRect dirty = editor.BeginStroke(test.Pointer.front(), test.Brush);
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

TEST(Erasing, GivesBackWhatTheConversionGaveHoweverThePaletteIsNow) {
    KitBench bench({"112", "332"}, 4);
    bench.State.Base = bench.State.Stipples;
    bench.State.BasePaints = bench.State.PaintColors;
    TouchUp editor(bench.Place);
    editor.Fill({1, 1}, 4);
    editor.Fill({3, 1}, 4);
    editor.ChangePalette("Move Paint", EditIntent::Paint, WithPaintMoved(editor.Sheet(), 1, 4));
    EXPECT_EQ(bench.Edited(), (Rows{"333", "223"})) << "2, 3 and 4 moved up";
    editor.BeginErasing({1, 1}, {.Size = 1});
    editor.StrokeTo({3, 1});
    EXPECT_EQ(editor.UndoName(), "Erase");
    editor.EndStroke();
    EXPECT_EQ(bench.Edited(), (Rows{"441", "223"}));
    editor.Undo();
    EXPECT_EQ(bench.Edited(), (Rows{"333", "223"}));
}

TEST(SmallAreas, MergeByTheirLongestBorderAndHardOnesAreFound) {
    struct Case {
        int Smallest;
        Rows Merged;
        int AreasLeft;
    };
    const Rows before = {"11122", "13122", "11444", "11445"};
    for (const Case& test : {Case{1, before, 5},
                             {2, {"11122", "11122", "11444", "11444"}, 3},
                             {5, {"11111", "11111", "11444", "11444"}, 2},
                             {99, before, 5}}) {
        KitBench bench(before);
        TouchUp editor(bench.Place);
        EXPECT_EQ(editor.PreviewAreaMerge(test.Smallest).AreasLeft, test.AreasLeft);
        editor.MergeAreas(test.Smallest);
        EXPECT_EQ(bench.Edited(), test.Merged) << test.Smallest;
    }
    KitBench kept(before);
    TouchUp within(kept.Place);
    CellSet corner(5, 4);
    corner.Add({2, 2});
    within.KeepWithin(std::make_shared<CellSet>(corner));
    EXPECT_EQ(within.PreviewAreaMerge(2).AreasLeft, 4) << "the last one is not selected";
    KitBench bench({"11112", "11112", "33442", "33442"});
    const TouchUp editor(bench.Place);
    const HardAreas small = FindHardAreas(editor.Sheet(), {5, 0});
    EXPECT_EQ(small.List, (std::vector<HardArea>{{{5, 1}, 4}, {{1, 3}, 4}, {{3, 3}, 4}}));
    EXPECT_EQ(small.Cells.size(), 12U);
    EXPECT_EQ(small.Next({1, 3})->At, (CellPos{3, 3}));
    EXPECT_EQ(small.Next({3, 3})->At, (CellPos{5, 1}));
    EXPECT_EQ(FindHardAreas(editor.Sheet(), {0, 2}).List, (std::vector<HardArea>{{{5, 1}, 4}}));
    EXPECT_EQ(FindHardAreas(editor.Sheet(), {4, 1}).Next({0, 0}), nullptr);
    EXPECT_EQ(StipplesOfMm2(25, 2.5), 4);
    EXPECT_EQ(StipplesOfMm2(25, 2), 7);
}

// A set as rows: # for its stipples.
Rows Drawn(const CellSet& cells) {
    Rows rows(static_cast<std::size_t>(cells.Down()),
              std::string(static_cast<std::size_t>(cells.Across()), '.'));
    for (const CellPos& at : cells.Cells()) {
        rows[static_cast<std::size_t>(at.Y - 1)][static_cast<std::size_t>(at.X - 1)] = '#';
    }
    return rows;
}

TEST(Selecting, ChoosesJoinsAndReshapes) {
    KitBench bench({"11213", "12113", "22113", "11111"});
    const TouchUp editor(bench.Place);
    const EditSheet& sheet = editor.Sheet();
    const CellSet box = CellsBetween(sheet, {4, 3}, {2, 2});
    const CellSet lasso = CellsInside(sheet, {{1, 1}, {5, 1}, {3, 4}});
    const std::pair<CellSet, Rows> cases[] = {
        {box, {".....", ".###.", ".###.", "....."}},
        {CellsBetween(sheet, {-3, 4}, {2, 9}), {".....", ".....", ".....", "##..."}},
        {lasso, {"#####", ".###.", ".###.", "..#.."}},
        {CellsInside(sheet, {{2, 2}}), {".....", ".#...", ".....", "....."}},
        {CellsLike(sheet, {3, 1}), {"..#..", ".#...", "##...", "....."}},
        {CellsLike(sheet, {0, 1}), {".....", ".....", ".....", "....."}},
        {AreaAround(sheet, {5, 2}), {"....#", "....#", "....#", "....."}},
        {Join(box, lasso, Joining::Subtract), {".....", ".....", ".....", "....."}},
        {Join(lasso, box, Joining::Subtract), {"#####", ".....", ".....", "..#.."}},
        {Join(AreaAround(sheet, {5, 2}), box, Joining::Add), {"....#", ".####", ".####", "....."}},
        {Grown(CellsBetween(sheet, {5, 1}, {5, 1})), {"...##", "...##", ".....", "....."}},
        {Shrunk(CellsBetween(sheet, {1, 1}, {4, 3})), {"###..", "###..", ".....", "....."}},
        {Inverted(box), {"#####", "#...#", "#...#", "#####"}},
        {Shifted(box, {2, -2}), {"...##", ".....", ".....", "....."}},
    };
    for (const auto& [cells, expected] : cases) {
        EXPECT_EQ(Drawn(cells), expected);
    }
}

TEST(Selecting, KeepsAllToolsWithinIt) {
    KitBench bench({"1111", "1111", "1131", "1111"});
    TouchUp editor(bench.Place);
    editor.KeepWithin(
        std::make_shared<const CellSet>(CellsBetween(editor.Sheet(), {1, 1}, {2, 2})));
    EXPECT_EQ(editor.PreviewCleanUp().Changes, 0);
    EXPECT_TRUE(editor.PreviewAreaMerge(2).Changes.empty());
    editor.Fill({4, 4}, 2);
    EXPECT_EQ(bench.Edited(), (Rows{"2211", "2211", "1131", "1111"}));
    editor.KeepWithin(nullptr);
    editor.Replace(2, 4);
    EXPECT_EQ(bench.Edited(), (Rows{"4411", "4411", "1131", "1111"}));
}

TEST(Patch, MovesMirrorsAndClosesTheHole) {
    KitBench bench({"1123", "1453", "1673", "1111"});
    TouchUp editor(bench.Place);
    const CellSet cells = Join(CellsBetween(editor.Sheet(), {2, 2}, {3, 3}),
                               CellsBetween(editor.Sheet(), {2, 2}, {2, 2}), Joining::Subtract);
    const CellPatch patch = CutPatch(editor.Sheet(), cells);
    EXPECT_EQ(patch.Paints.Count(), 3) << "5, 6 and 7";
    EXPECT_EQ(ReadPatch(PatchText(patch)), patch);
    editor.Edit("Move", EditIntent::Paint, [&](EditPen& pen) {
        CloseHole(pen, cells);
        PlacePatch(pen, Mirrored(patch, MirrorWay::LeftRight), {1, 1});
    });
    EXPECT_EQ(bench.Edited(), (Rows{"5123", "7623", "1433", "1111"}));
    EXPECT_EQ(CellsOf(patch, {4, 4}, editor.Sheet()).Count(), 0) << "the corner is no part of it";
    EXPECT_EQ(CellsOf(patch, {3, 3}, editor.Sheet()).Count(), 3);
    editor.Undo();
    EXPECT_EQ(bench.State.EditStipples, bench.State.Stipples);
}

TEST(Patch, TakesTheNearestPaintWhereAKitLacksIts) {
    KitBench bench({"12"}, 2);
    const TouchUp editor(bench.Place);
    CellPatch patch = CutPatch(editor.Sheet(), CellsLike(editor.Sheet(), {2, 1}));
    EXPECT_EQ(MissingPaints(editor.Sheet().Paints(), patch).Count(), 0);
    patch.Paints[1].PaintName = "Another";
    EXPECT_EQ(MissingPaints(editor.Sheet().Paints(), patch).Count(), 1);
    EXPECT_EQ(PaintsIn(editor.Sheet().Paints(), patch)[1], 2) << "by its color";
    const std::string text = PatchText(patch);
    for (const std::string& broken :
         {std::string("text"), std::string(), text.substr(0, text.size() / 2),
          "\"Vendrel stipples\",2" + text.substr(20), text.substr(0, text.size() - 2) + "9\n",
          std::string("\"Vendrel stipples\",1\n32767,32767,1\n")}) {
        EXPECT_THROW((void)ReadPatch(broken), FormatError) << broken;
    }
}

TEST(PaletteSteps, AddRemoveAndMovePaintsWithTheirStipples) {
    KitBench bench({"123", "333"}, 3);
    TouchUp editor(bench.Place);
    const auto names = [&] {
        std::string all;
        for (const PaintColor& paint : bench.State.FoundColors) {
            all += paint.PaintName.substr(6) + ",";
        }
        return all;
    };
    editor.ChangePalette("Add Paint", EditIntent::Paint,
                         WithPaints(editor.Sheet(), {{1, 2, 3, "Set", "X", "Paint X", 7}}));
    EXPECT_EQ(names(), "1,2,3,X,");
    editor.ChangePalette("Move Paint", EditIntent::Paint, WithPaintMoved(editor.Sheet(), 3, 1));
    EXPECT_EQ(names(), "3,1,2,X,");
    EXPECT_EQ(bench.Edited(), (Rows{"231", "111"}));
    const int heir = StandInByEye(bench.State.FoundColors, bench.State.FoundColors[1], 1);
    const std::string heirName = bench.State.FoundColors[heir].PaintName;
    editor.ChangePalette("Remove Paint", EditIntent::Exchange, WithoutPaint(editor.Sheet(), 1));
    EXPECT_EQ(names(), "1,2,X,");
    EXPECT_EQ(bench.State.FoundColors[editor.Sheet().PaintAt({1, 2})].PaintName, heirName);
    EXPECT_TRUE(bench.CountsAreTrue());
    EXPECT_EQ(editor.GoToStep(0), (CellRect{1, 1, 3, 2}));
    EXPECT_EQ(bench.State.FoundCount, 3);
    EXPECT_EQ(bench.State.EditStipples, bench.State.Stipples);
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
    EXPECT_TRUE(editor.BeginStroke({1, 1}, {1, 1}).Empty());
    EXPECT_TRUE(editor.BeginStroke({1, 1}, {1, 3}).Empty()) << "no such paint";
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
    const Case cases[] = {
        {8, {"1111", "1311", "1111", "1111"}, {"1111", "1111", "1111", "1111"}, {1, 1}},
        {8, {"2111", "1311", "1111", "1111"}, {"2111", "1311", "1111", "1111"}, {0, 3}},
        {7, {"2111", "1311", "1111", "1111"}, {"2111", "1111", "1111", "1111"}, {1, 2}},
        {6, {"222", "131", "111"}, {"222", "131", "111"}, {0, 3}},
        {5, {"222", "131", "111"}, {"222", "111", "111"}, {1, 2}},
        // Neighbours outside the grid count as none: a side has five, a corner three.
        {6, {"121", "111", "113"}, {"121", "111", "113"}, {0, 3}},
        {5, {"121", "111", "113"}, {"111", "111", "113"}, {1, 2}},
        {4, {"121", "111", "113"}, {"111", "111", "113"}, {1, 2}},
        {3, {"121", "111", "113"}, {"111", "111", "111"}, {2, 1}},
        // Every stipple goes by what its neighbours were before the pass.
        {2, {"12", "21"}, {"21", "12"}, {4, 4}},
        // Two paints would do: the one on more neighbours, then the lower index.
        {3, {"555", "434", "444"}, {"555", "444", "444"}, {1, 2}},
        {4, {"555", "536", "666"}, {"555", "556", "666"}, {1, 2}},
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
