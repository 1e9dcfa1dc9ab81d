#include "plan/page_tiling.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "plan/paint_finder.h"
#include "plan/paint_needs.h"
#include "support/error.h"

namespace vendrel {
namespace {

using testing::ElementsAre;

constexpr double kList = 40;

CanvasToCut CanvasOf(SizeMm size, StippleRuler stipples = {}) {
    return {size, stipples, [](const PaperChoice&, const PlanRect&) { return kList; }};
}

const std::vector<PaperChoice> kA4 = {{{210, 297}, {15, 20, 20}}, {{297, 210}, {15, 20, 20}}};

// Every share begins where the one before it ends, first and last at the canvas's edges.
void ExpectExactCover(const PagePlan& plan) {
    ASSERT_EQ(plan.Tiles.size(),
              static_cast<std::size_t>(plan.Across) * static_cast<std::size_t>(plan.Down));
    for (const PageTile& tile : plan.Tiles) {
        const auto at = [&plan](int column, int row) -> const PlanRect& {
            const int place = row * plan.Across + column;
            return plan.Tiles[static_cast<std::size_t>(place)].Own;
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
    for (const StippleRuler stipples : {StippleRuler{}, StippleRuler{0.4, 3.2}}) {
        for (const SizeMm size :
             {SizeMm{100, 80}, SizeMm{180, 217}, SizeMm{180.01, 217.01}, SizeMm{812.7, 609.3},
              SizeMm{50, 2900}, SizeMm{1000.0 / 3, 333}}) {
            const PagePlan plan = PlanPages(CanvasOf(size, stipples), kA4);
            ExpectExactCover(plan);
            const PaperChoice& paper = plan.Paper;
            for (const PageTile& tile : plan.Tiles) {
                EXPECT_LE(tile.Shown.Right - tile.Shown.Left, paper.Sheet.Width - 30 + 1e-6);
                EXPECT_LE(tile.Shown.Bottom - tile.Shown.Top,
                          paper.Sheet.Height - 40 - kList + 1e-6);
                const double stipple = (tile.Own.Left - stipples.First) / stipples.Step;
                EXPECT_TRUE(stipples.Step == 0 || tile.Column == 0 ||
                            std::abs(stipple - std::round(stipple)) < 1e-6);
            }
        }
    }
}

TEST(PageTiling, GrowsAsFarAsItsPagesReach) {
    for (const SizeMm size : {SizeMm{100, 80}, SizeMm{533, 400}, SizeMm{200, 900}}) {
        const PagePlan plan = PlanPages(CanvasOf(size), kA4);
        const double room = RoomToGrow(plan);
        const PagePlan grown = Enlarged(plan, room);
        ExpectExactCover(grown);
        const auto pages = [&](double times) {
            return PlanPages(CanvasOf(Enlarged(plan, times).Canvas), {plan.Paper}).Tiles.size();
        };
        EXPECT_EQ(pages(room * 0.999), plan.Tiles.size());
        EXPECT_GT(pages(room * 1.001), plan.Tiles.size());
    }
}

TEST(PageTiling, GivesEveryPageTheRoomItsOwnListNeeds) {
    // Two shares of 170: the upper one with its overlap leaves 82 for a list, the lower one 87.
    const auto pages = [](double upper, double lower) {
        return PlanPages({{180, 340},
                          {},
                          [=](const PaperChoice&, const PlanRect& own) {
                              return own.Top == 0 ? upper : lower;
                          }},
                         {kA4[0]})
            .Tiles.size();
    };
    EXPECT_EQ(pages(82, 87), 2U);
    EXPECT_EQ(pages(82.1, 0), 3U);
    EXPECT_EQ(pages(0, 87.1), 3U);
}

TEST(PageTiling, PlacesListsBesideThePictureForFewerPages) {
    const PageFrame frame{12, 26, 12};
    const auto plan = [&frame](double list) {
        return PlanPages({{400, 300}, {}, [list](const auto&, const auto&) { return list; }},
                         {{{297, 210}, frame}, {{297, 210}, frame, 2, 66}});
    };
    EXPECT_EQ(plan(60).Paper.Beside, 66);
    EXPECT_EQ(plan(60).Tiles.size(), 4U);
    EXPECT_THROW((void)plan(173), Error) << "it is longer than the page";
}

TEST(PageTiling, TurnsThePaperForFewerPages) {
    EXPECT_EQ(PlanPages(CanvasOf({180, 217}), kA4).Paper.Sheet, (SizeMm{210, 297}));
    const PagePlan wide = PlanPages(CanvasOf({267, 130}), kA4);
    EXPECT_EQ(wide.Paper.Sheet, (SizeMm{297, 210}));
    EXPECT_EQ(wide.Tiles.size(), 1U);
}

TEST(PageTiling, NamesPagesByRowAndColumn) {
    EXPECT_EQ((PageTile{0, 0, {}, {}}.Name()), "A1");
    EXPECT_EQ((PageTile{11, 25, {}, {}}.Name()), "Z12");
    EXPECT_EQ((PageTile{0, 26, {}, {}}.Name()), "AA1");
}

TEST(PageTiling, RefusesPaperWithoutRoom) {
    EXPECT_THROW((void)PlanPages(CanvasOf({100, 100}), {{{210, 297}, {15, 20, 255}}}), Error);
    // A list that leaves less than a strip of the picture beside it.
    EXPECT_THROW(
        (void)PlanPages({{100, 100}, {}, [](const auto&, const auto&) { return 300; }}, kA4),
        Error);
}

TEST(PaintNeeds, AreOfTheCanvasWithPotsToSpare) {
    // 20 x 10 pixels of 1 mm: paint 1 has 150 of them, paint 3 the 50 at the right.
    ValueGrid paints(19, 9);
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 20; ++x) {
            paints(x, y) = x < 15 ? 1 : 3;
        }
    }
    PagePlan pages;
    pages.Tiles = {{.Column = 0, .Row = 0, .Own = {0, 0, 10, 10}, .Shown = {}},
                   {.Column = 1, .Row = 0, .Own = {10, 0, 20, 10}, .Shown = {}}};
    const PaintUse use{.Coats = 3, .Cm2PerMl = 0.5, .PotMl = 4};
    const PaintedRegions regions = FindRegions(paints);
    const PaintFinder finder(regions);
    const auto needs = PaintNeeds({regions, finder, pages, PrintScale::OfCanvas(2, 20)}, 3, use);
    ASSERT_EQ(needs.size(), 3U);
    EXPECT_DOUBLE_EQ(needs[0].Cm2, 1.5);
    EXPECT_DOUBLE_EQ(needs[0].Ml, 9);
    EXPECT_EQ(needs[0].Pots, 3) << "two would do without what is to spare";
    EXPECT_EQ(needs[0].Pages, (std::vector<std::string>{"A1", "A2"}));
    EXPECT_EQ(needs[1].Pots, 0);
    EXPECT_EQ(needs[2].Pages, std::vector<std::string>{"A2"});
    EXPECT_EQ(needs[2].Pots, 1);
    EXPECT_DOUBLE_EQ(SumOf(needs).Cm2, 2);
    EXPECT_EQ(SumOf(needs).Pots, 4);
    EXPECT_EQ(UseText(use, false),
              "3 coats at 1 ml for 0.5 cm\u00b2, pots of 4 ml with 15 % to spare");
}

TEST(PageTiling, ListsThePaintsOfAPage) {
    PixelGrid paints(40, 37);
    std::ranges::fill(paints.All(), 7);
    paints(2, 0) = 2;
    paints(19, 20) = 5;
    paints(40, 37) = 50;
    const PaintFinder finder(FindRegions(paints));
    EXPECT_THAT(finder.Within({0, 0, 2, 1}), ElementsAre(7));
    EXPECT_THAT(finder.Within({0, 0, 2.1, 1}), ElementsAre(2, 7));
    EXPECT_THAT(finder.Within({3, 0, 40, 37}), ElementsAre(5, 7));
    EXPECT_THAT(finder.Within({3, 1, 19, 38}), ElementsAre(7));
    EXPECT_THAT(finder.Within({19, 20, 20, 21}), ElementsAre(5));
    EXPECT_THAT(finder.Within({-3, -3, 99, 99}), ElementsAre(2, 5, 7, 50));
}

}  // namespace
}  // namespace vendrel
