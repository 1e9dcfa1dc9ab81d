#include "plan/page_tiling.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "support/error.h"

namespace vendrel {
namespace {

using testing::ElementsAre;

const std::vector<PaperChoice> kA4 = {{{210, 297}, {15, 20, 60}}, {{297, 210}, {15, 20, 40}}};

// Every share begins where the one before it ends, first and last at the canvas's edges.
void ExpectExactCover(const PagePlan& plan) {
    ASSERT_EQ(plan.Tiles.size(), static_cast<std::size_t>(plan.Across * plan.Down));
    for (const PageTile& tile : plan.Tiles) {
        const auto at = [&plan](int column, int row) -> const PlanRect& {
            return plan.Tiles[static_cast<std::size_t>(row * plan.Across + column)].Own;
        };
        const bool last = tile.Column + 1 == plan.Across;
        const bool lowest = tile.Row + 1 == plan.Down;
        EXPECT_EQ(tile.Own.Left, tile.Column == 0 ? 0 : at(tile.Column - 1, tile.Row).Right);
        EXPECT_EQ(tile.Own.Top, tile.Row == 0 ? 0 : at(tile.Column, tile.Row - 1).Bottom);
        EXPECT_EQ(tile.Own.Right, last ? plan.Canvas.Width : at(tile.Column + 1, tile.Row).Left);
        EXPECT_EQ(tile.Own.Bottom, lowest ? plan.Canvas.Height : at(tile.Column, tile.Row + 1).Top);
        EXPECT_EQ(tile.Shown.Right, last ? tile.Own.Right : tile.Own.Right + kOverlapMm);
        EXPECT_EQ(tile.Shown.Bottom, lowest ? tile.Own.Bottom : tile.Own.Bottom + kOverlapMm);
        EXPECT_EQ(tile.Shown.Left, tile.Own.Left);
        EXPECT_EQ(tile.Shown.Top, tile.Own.Top);
    }
}

TEST(PageTiling, CoversEveryCanvasExactlyAndFitsThePaper) {
    for (const SizeMm canvas : {SizeMm{100, 80}, SizeMm{180, 217}, SizeMm{180.01, 217.01},
                                SizeMm{812.7, 609.3}, SizeMm{50, 2900}, SizeMm{1000.0 / 3, 333}}) {
        const PagePlan plan = PlanPages(canvas, kA4);
        ExpectExactCover(plan);
        const PageFrame& frame = plan.Sheet == kA4[0].Sheet ? kA4[0].Frame : kA4[1].Frame;
        for (const PageTile& tile : plan.Tiles) {
            EXPECT_LE(tile.Shown.Right - tile.Shown.Left, plan.Sheet.Width - 2 * frame.Side + 1e-9);
            EXPECT_LE(tile.Shown.Bottom - tile.Shown.Top,
                      plan.Sheet.Height - frame.Top - frame.Bottom + 1e-9);
        }
    }
}

TEST(PageTiling, GrowsAsFarAsItsPagesReach) {
    for (const SizeMm canvas : {SizeMm{100, 80}, SizeMm{533, 400}, SizeMm{200, 900}}) {
        const PagePlan plan = PlanPages(canvas, kA4);
        const double room = RoomToGrow(plan);
        const PagePlan grown = Enlarged(plan, room);
        ExpectExactCover(grown);
        EXPECT_EQ(PlanPages(Enlarged(plan, room * 0.999).Canvas, kA4).Tiles.size(),
                  plan.Tiles.size());
        const PaperChoice same{plan.Sheet, plan.Frame};
        EXPECT_GT(PlanPages(Enlarged(plan, room * 1.001).Canvas, {same}).Tiles.size(),
                  plan.Tiles.size());
    }
}

TEST(PageTiling, TakesNoFrameThatDoesNotHoldItsLists) {
    const auto roomBelow = [](const PagePlan& plan) { return plan.Frame.Bottom > 50; };
    EXPECT_EQ(PlanPages({267, 150}, kA4, roomBelow).Sheet, (SizeMm{210, 297}));
    EXPECT_THROW((void)PlanPages({267, 150}, kA4, [](const PagePlan&) { return false; }), Error);
}

TEST(PageTiling, TurnsThePaperForFewerPages) {
    EXPECT_EQ(PlanPages({180, 217}, kA4).Sheet, (SizeMm{210, 297}));
    const PagePlan wide = PlanPages({267, 150}, kA4);
    EXPECT_EQ(wide.Sheet, (SizeMm{297, 210}));
    EXPECT_EQ(wide.Tiles.size(), 1U);
}

TEST(PageTiling, NamesPagesByRowAndColumn) {
    EXPECT_EQ((PageTile{0, 0, {}, {}}.Name()), "A1");
    EXPECT_EQ((PageTile{11, 25, {}, {}}.Name()), "Z12");
    EXPECT_EQ((PageTile{0, 26, {}, {}}.Name()), "AA1");
}

TEST(PageTiling, RefusesPaperWithoutRoom) {
    EXPECT_THROW((void)PlanPages({100, 100}, {{{210, 297}, {15, 20, 255}}}), Error);
}

TEST(PageTiling, ListsThePaintsOfAPage) {
    PixelGrid paints(3, 0);
    std::ranges::copy(std::vector{7, 7, 2, 5}, paints.All().begin());
    const PaintedRegions regions = FindRegions(paints, 1);
    EXPECT_THAT(PaintsWithin(regions, {0, 0, 2, 1}), ElementsAre(7));
    EXPECT_THAT(PaintsWithin(regions, {0, 0, 2.1, 1}), ElementsAre(2, 7));
    EXPECT_THAT(PaintsWithin(regions, {-3, -3, 99, 99}), ElementsAre(2, 5, 7));
}

}  // namespace
}  // namespace vendrel
