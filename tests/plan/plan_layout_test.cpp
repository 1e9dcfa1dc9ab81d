#include "plan/plan_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "cleanup/paint_bench.h"
#include "cleanup/paint_pass.h"
#include "plan/bleed.h"
#include "plan/plan_figures.h"
#include "support/error.h"

namespace vendrel {
namespace {

// Six by five stipples of three paints, painted as the program paints.
class PlannedPicture : public testing::Test {
  protected:
    PlannedPicture() : easel_(6, {"111222", "131222", "111233", "111333", "222333"}) {
        PaintAllCells(easel_.Place);
        aspects_.fill(0.7);
    }
    [[nodiscard]] PlanSketch Sketch() const {
        return SketchPlan(easel_.State, easel_.Frames.WorkFrame.Picture, aspects_);
    }
    [[nodiscard]] PrintPlan Plan(const PlanSettings& settings) const {
        return MakePrintPlan(easel_.State, Sketch(), settings, PlanCut::AtPages);
    }

    test::PaintBench easel_;
    SymbolAspects aspects_{};
};

TEST_F(PlannedPicture, FillsThePagesThatSymbolsOfTwoMillimetresNeed) {
    const PrintPlan plan = Plan({});
    const auto smallest = std::ranges::min_element(plan.Labels, {}, &PlanLabel::Height);
    EXPECT_GE(plan.Scale.Mm(smallest->Height), kLegibleSymbolMm);
    EXPECT_LE(plan.Scale.Mm(smallest->Height), kLargestSymbolMm);
    EXPECT_EQ(plan.Pages.Tiles.size(), 1U);
    EXPECT_EQ(std::fmod(plan.Pages.Canvas.Width, 5), 0);  // millimetres
    EXPECT_GE(RoomToGrow(plan.Pages), 1);
    EXPECT_DOUBLE_EQ(plan.Pages.Canvas.Width, plan.Scale.Mm(36));
    EXPECT_EQ(plan.Regions.List.size(), 5U);
}

TEST_F(PlannedPicture, TakesTheCanvasAskedForAndThePagesItNeeds) {
    const PrintPlan small = Plan({.Sheet = Paper::A4, .CanvasCm = 15});
    EXPECT_EQ(small.Pages.Tiles.size(), 1U);
    const PrintPlan large = Plan({.Sheet = Paper::A4, .CanvasCm = 60});
    EXPECT_DOUBLE_EQ(large.Pages.Canvas.Width, 600);
    EXPECT_DOUBLE_EQ(large.Pages.Canvas.Height, 500);
    EXPECT_LT(Plan({.Sheet = Paper::A3, .CanvasCm = 60}).Pages.Tiles.size(),
              large.Pages.Tiles.size());
}

TEST_F(PlannedPicture, DrawsEveryLabelOnSomePageAndEveryPageHasOne) {
    for (const double canvas : {15.0, 37.3, 60.0, 111.0}) {
        const PrintPlan plan = Plan({.Sheet = Paper::A4, .CanvasCm = canvas});
        const auto inPixels = [&plan](const PlanRect& part) { return InPixels(part, plan.Scale); };
        for (const PageTile& tile : plan.Pages.Tiles) {
            const PlanRect own = inPixels(tile.Own);
            EXPECT_TRUE(std::ranges::any_of(plan.Labels,
                                            [&](const PlanLabel& label) {
                                                return label.Centre.X >= own.Left &&
                                                       label.Centre.X <= own.Right &&
                                                       label.Centre.Y >= own.Top &&
                                                       label.Centre.Y <= own.Bottom;
                                            }))
                << canvas << tile.Name();
        }
        for (const PlanLabel& label : plan.Labels) {
            EXPECT_TRUE(std::ranges::any_of(plan.Pages.Tiles, [&](const PageTile& tile) {
                return IsLabelOn(label, 0.7, inPixels(tile.Own), inPixels(tile.Shown));
            })) << canvas;
            for (const PlanLabel& other : plan.Labels) {
                const double apart =
                    std::hypot(label.Centre.X - other.Centre.X, label.Centre.Y - other.Centre.Y);
                EXPECT_TRUE(&label == &other || apart > std::max(label.Height, other.Height));
            }
        }
    }
}

TEST_F(PlannedPicture, TellsWhichCanvasOrDifficultyMakesSymbolsLegible) {
    PlanSketch sketch = Sketch();
    EXPECT_FALSE(FiguresOf(sketch, {}).Symbols);
    EXPECT_EQ(WarningOf(FiguresOf(sketch, {}, Plan({}))), "");
    EXPECT_EQ(FiguresOf(sketch, {}).Areas, 5);
    EXPECT_EQ(FiguresOf(sketch, {}).Pages, 1);
    const PlanSettings small{.Sheet = Paper::A4, .CanvasCm = 10};
    PrintPlan plan = Plan(small);
    EXPECT_EQ(WarningOf(FiguresOf(sketch, small, plan)), "");
    // An area's tallest symbol counts, wherever it stands.
    const double mm = plan.Scale.Pixels(1);
    plan.Labels = {{0, {}, 1.5 * mm}, {1, {}, 2 * mm}, {1, {}, 1.2 * mm},
                   {2, {}, 1.3 * mm}, {3, {}, 2 * mm}, {4, {}, 2 * mm, PlanPoint{}}};
    EXPECT_EQ(
        WarningOf(FiguresOf(sketch, small, plan)),
        "2 of 5 areas have no room for a symbol of 2 mm, the smallest for one of 1.3 mm; a canvas "
        "of 15 cm or easy difficulty gives them 2 mm or more.");
    sketch.StippleSize = 8;
    plan.Regions.List.resize(1001);
    sketch.Regions = plan.Regions;
    plan.Labels.clear();
    for (int i = 0; i < 1001; ++i) {
        plan.Labels.push_back({i, {}, i < 1000 ? 2 * mm : 0.005 * mm});
    }
    EXPECT_EQ(WarningOf(FiguresOf(sketch, small, plan)),
              "1 of 1,001 areas has no room for a symbol of 2 mm, the smallest for one of 0.0 mm.");
}

// The picture is 36 by 30 pixels.
TEST_F(PlannedPicture, StandsInTheMiddleOfACanvasOfBothSides) {
    const PrintPlan high = Plan({.Canvas = {180, 250}});
    EXPECT_DOUBLE_EQ(high.Scale.MmPerPixel(), 5);
    EXPECT_EQ(high.PictureAt, (PlanPoint{0, 50}));
    EXPECT_EQ(high.Pages.Canvas, (SizeMm{180, 150}));
    const PrintPlan whole = Plan({.Sheet = Paper::Canvas, .Canvas = {460, 300}, .BleedMm = 20});
    EXPECT_EQ(whole.PictureAt, (PlanPoint{50, 0}));
    EXPECT_EQ(whole.Pages.Tiles.size(), 1U);
    EXPECT_EQ(whole.Pages.Paper.Sheet, (SizeMm{460 + 64, 300 + 64}));
    EXPECT_THROW((void)Plan({.Canvas = {99, 250}}), Error);
    EXPECT_THROW((void)Plan({.Canvas = {250, 3001}}), Error);
}

TEST_F(PlannedPicture, CarriesItsBordersOnIntoTheBleedSquareToTheEdge) {
    const PrintPlan plan = Plan({.CanvasCm = 36, .Lines = LineShape::Smooth});
    const auto all = CarryOn(plan.Lines, {36, 30}, {3, 2});
    EXPECT_GE(all.size(), 4U);
    for (const BleedLine& line : all) {
        const double across = line.To.X - line.From.X;
        const double down = line.To.Y - line.From.Y;
        EXPECT_TRUE(across == 0 || down == 0);
        EXPECT_DOUBLE_EQ(std::abs(across) + std::abs(down), across == 0 ? 2 : 3);
        EXPECT_TRUE(line.To.X <= 0 || line.To.Y <= 0 || line.To.X >= 36 || line.To.Y >= 30);
    }
    // Beside margins the picture's own sides run on too.
    int sides = 0;
    for (const BleedLine& line : CarryOn(plan.Lines, {36, 30}, {0, 2})) {
        EXPECT_EQ(line.To.X, line.From.X);
        sides += line.From.X == 0 || line.From.X == 36 ? 1 : 0;
    }
    EXPECT_EQ(sides, 4);
}

TEST_F(PlannedPicture, RefusesWhatCannotBePrinted) {
    EXPECT_THROW((void)Plan({.Sheet = Paper::A4, .CanvasCm = 9.9}), Error);
    EXPECT_THROW((void)Plan({.Sheet = Paper::A4, .CanvasCm = 301}), Error);
    const PaintList paints = easel_.State.PaintColors;
    SetPalette(easel_.State, PaintList(51));
    EXPECT_THROW((void)Plan({}), Error);
    SetPalette(easel_.State, paints);
    easel_.State.PixelMap = {};
    EXPECT_THROW((void)Plan({}), Error);
}

}  // namespace
}  // namespace vendrel
