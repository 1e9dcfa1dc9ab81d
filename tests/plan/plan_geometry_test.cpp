// What the printed plan is drawn from: regions, their outlines and the places of their symbols.
#include <gmock/gmock.h>

#include <cmath>
#include <map>
#include <random>
#include <set>

#include "cleanup/paint_bench.h"
#include "plan/inscribed_boxes.h"
#include "plan/label_placement.h"
#include "plan/line_checks.h"
#include "plan/mark_places.h"
#include "plan/painted_regions.h"
#include "plan/plan_lines.h"
#include "plan/symbol_room.h"
#include "regions/crumbs.h"
#include "regions/values.h"
#include "support/error.h"

namespace vendrel {
namespace {

using test::Values;
using testing::ElementsAre;

PixelGrid RandomPixels(int width, int height, unsigned seed, int paints) {
    std::mt19937 random(seed);
    PixelGrid grid(width - 1, height - 1);
    for (int& pixel : grid.All()) {
        pixel = 1 + static_cast<int>(random() % static_cast<unsigned>(paints));
    }
    return grid;
}

LabelRules Rules(double largest, double step) {
    LabelRules rules;
    rules.Aspects = PaintAspects(kSymbolCount, 0.75);
    rules.Air = {.Wanted = 0.1, .Least = 0.05, .Legible = 0.5, .Largest = largest};
    rules.LatticeStep = step;
    return rules;
}

// Borders as the middles of their units.
using Units = std::multiset<std::pair<double, double>>;

Units UnitsOf(const PlanLines& lines) {
    Units units;
    for (const PlanChain& chain : lines.Chains) {
        const PlanLine& line = chain.Points;
        for (std::size_t i = 1; i < line.size(); ++i) {
            for (PlanPoint at = line[i - 1]; at != line[i];) {
                const double dx = std::clamp(line[i].X - at.X, -1.0, 1.0);
                const double dy = std::clamp(line[i].Y - at.Y, -1.0, 1.0);
                units.emplace(at.X + dx / 2, at.Y + dy / 2);
                at = {at.X + dx, at.Y + dy};
            }
        }
    }
    return units;
}

Units PlainUnits(const PixelGrid& ids) {
    const auto at = [&ids](int x, int y) { return ids.Holds(x, y) ? ids(x, y) : -1; };
    Units units;
    for (int y = 0; y <= ids.Down() + 1; ++y) {
        for (int x = 0; x <= ids.Across() + 1; ++x) {
            if (at(x, y) != at(x - 1, y)) {
                units.emplace(x, y + 0.5);
            }
            if (at(x, y) != at(x, y - 1)) {
                units.emplace(x + 0.5, y);
            }
        }
    }
    return units;
}

TEST(PaintedRegions, BarePixelsTakeThePaintOfTheirStipple) {
    test::PaintBench easel(4, {"12"});
    WorkState& state = easel.State;
    state.PixelMap(5, 1).ColorIndex = 1;
    EXPECT_EQ(PaintPerPixel(state, state, 4, 8, 4),
              Values({"11111222", "11111122", "11111222", "11111222"}));
    state.PixelMap = Grid<MapPixel>();
    EXPECT_THROW((void)PaintPerPixel(state, state, 4, 8, 4), Error);
}

TEST(Lines, HoldEveryBorderOnceAndRingsRoundEveryArea) {
    for (unsigned seed = 0; seed < 20; ++seed) {
        const PaintedRegions areas = FindRegions(RandomPixels(9, 7, seed, 2 + int(seed % 3)));
        const PlanLines lines = TraceLines(areas.Ids);
        EXPECT_EQ(UnitsOf(lines), PlainUnits(areas.Ids));
        for (const PlanChain& chain : lines.Chains) {
            EXPECT_NE(chain.Left, chain.Right);
            for (std::size_t i = 2; i < chain.Points.size(); ++i) {
                EXPECT_NE(chain.Points[i].X == chain.Points[i - 1].X,
                          chain.Points[i - 1].X == chain.Points[i - 2].X);
            }
        }
        for (int area = 0; area < areas.Count(); ++area) {
            EXPECT_EQ(SizeOfArea(lines, area), areas[area].Size);
        }
    }
}

TEST(Lines, GoRoundHolesTheOtherWayAndApartWhereAreasTouchByACorner) {
    const PlanLines lines = TraceLines(FindRegions(Values({"1111",  //
                                                           "1211",  //
                                                           "1121",  //
                                                           "1111"}))
                                           .Ids);
    ASSERT_EQ(lines.Rings.size(), 3U);
    EXPECT_EQ(lines.Rings[0].size(), 2U);
    EXPECT_THAT(PointsOf(lines, lines.Rings[1][0]),
                testing::UnorderedElementsAre(PlanPoint{1, 1}, PlanPoint{2, 1}, PlanPoint{2, 2},
                                              PlanPoint{1, 2}));
    EXPECT_EQ(SizeOfArea(lines, 0), 14);
}

TEST(Lines, PagesTogetherShowEveryBorder) {
    const PixelGrid ids = RandomPixels(12, 10, 5, 3);
    const PlanLines lines = TraceLines(ids);
    double length = 0;
    for (const PlanRect& part : {PlanRect{0, 0, 4.5, 10}, PlanRect{4.5, 0, 12, 10}}) {
        for (const PlanChain& chain : lines.Chains) {
            for (const PlanLine& line : ClipLine(chain.Points, part)) {
                for (std::size_t i = 1; i < line.size(); ++i) {
                    length += std::hypot(line[i].X - line[i - 1].X, line[i].Y - line[i - 1].Y);
                    EXPECT_GE(std::min(line[i].X, line[i - 1].X), part.Left);
                    EXPECT_LE(std::max(line[i].X, line[i - 1].X), part.Right);
                }
            }
        }
    }
    EXPECT_DOUBLE_EQ(length, static_cast<double>(PlainUnits(ids).size()));
    // A part that was reckoned in millimetres may end a hair before the picture does.
    EXPECT_EQ(ClipLine({{0, 0}, {12, 0}}, {1e-12, 1e-12, 12 - 1e-12, 9}).size(), 1U);
    const auto aslant = ClipLine({{0, 0}, {4, 8}, {8, 0}}, {1, 0, 7, 4});
    ASSERT_EQ(aslant.size(), 2U);
    EXPECT_NEAR(aslant[0].front().Y, 2, 1e-5);
    EXPECT_NEAR(aslant[1].front().X, 6, 1e-5);
}

TEST(InscribedBoxes, AreTheRoomiestThereAre) {
    constexpr double kAspect = 0.75;
    for (unsigned seed = 0; seed < 20; ++seed) {
        const PaintedRegions regions = FindRegions(RandomPixels(11, 9, seed, 2));
        const PixelGrid& ids = regions.Ids;
        std::map<int, double> plain;
        for (int top = 0; top <= ids.Down(); ++top) {
            for (int left = 0; left <= ids.Across(); ++left) {
                int right = ids.Across() + 1;  // of a box that reaches down to row y
                for (int y = top; y <= ids.Down() && ids(left, y) == ids(left, top); ++y) {
                    int end = left;
                    while (end < right && ids(end, y) == ids(left, top)) {
                        ++end;
                    }
                    right = end;
                    double& best = plain[ids(left, top)];
                    best = std::max(best, std::min<double>((right - left) / kAspect, y + 1 - top));
                }
            }
        }
        const auto boxes = FindRoomiestBoxes(regions, [](int) { return kAspect; });
        ASSERT_EQ(boxes.size(), regions.List.size());
        for (const InscribedBox& box : boxes) {
            EXPECT_DOUBLE_EQ(box.Height, plain[box.Region]);
        }
    }
}

void ExpectInside(const PaintedRegions& regions, const PlanLabel& label, double aspect) {
    const double halfWidth = label.Height * aspect / 2;
    const double halfHeight = label.Height / 2;
    const int left = static_cast<int>(label.Centre.X - halfWidth);
    const int top = static_cast<int>(label.Centre.Y - halfHeight);
    for (int y = top; y < label.Centre.Y + halfHeight; ++y) {
        for (int x = left; x < label.Centre.X + halfWidth; ++x) {
            ASSERT_EQ(regions.Ids(x, y), label.Region);
        }
    }
}

TEST(Labels, EveryRegionHasOneAndEveryOneLiesInsideItsRegion) {
    for (unsigned seed = 0; seed < 10; ++seed) {
        const PaintedRegions regions = FindRegionsWithoutCrumbs(RandomPixels(40, 30, seed, 3), 4);
        LabelRules rules = Rules(6, 10);
        rules.Cuts.Columns = {13, 27};
        rules.Cuts.Rows = {16};
        std::set<int> labelled;
        for (const PlanLabel& label : test::LabelsFor(regions, TraceLines(regions.Ids), rules)) {
            labelled.insert(label.Region);
            EXPECT_GT(label.Height, 0);
            EXPECT_LE(label.Height, 6);
            ExpectInside(regions, label, 0.75);
        }
        EXPECT_EQ(labelled.size(), regions.List.size());
    }
}

TEST(Labels, LargeRegionsRepeatTheirsAndEveryPageShowsOne) {
    PixelGrid plain(99, 59);
    std::ranges::fill(plain.All(), 1);
    const PaintedRegions regions = FindRegions(plain);
    EXPECT_EQ(test::LabelsFor(regions, TraceLines(regions.Ids), Rules(5, 0)).size(), 1U);
    EXPECT_GE(test::LabelsFor(regions, TraceLines(regions.Ids), Rules(5, 20)).size(), 12U);
    LabelRules pages = Rules(5, 0);
    pages.Cuts.Columns = {45};
    const auto labels = test::LabelsFor(regions, TraceLines(regions.Ids), pages);
    ASSERT_EQ(labels.size(), 2U);
    EXPECT_EQ(labels[0].Centre, (PlanPoint{50, 30}));
    EXPECT_LT(labels[1].Centre.X, 45);
}

TEST(Labels, StandInEveryPieceOfAPageAndBesideItsCuts) {
    // A horseshoe whose legs the cut leaves on the lower page, each a piece of its own.
    PixelGrid horseshoe(59, 39);
    std::ranges::fill(horseshoe.All(), 2);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 60; ++x) {
            horseshoe(x, y) = y >= 12 && x >= 14 && x < 46 ? 1 : 2;
        }
    }
    const PaintedRegions regions = FindRegions(horseshoe);
    LabelRules rules = Rules(6, 0);
    rules.Cuts.Rows = {20};
    std::vector<std::pair<bool, bool>> legs;  // of the horseshoe's symbols: below the cut, left
    for (const PlanLabel& label : test::LabelsFor(regions, TraceLines(regions.Ids), rules)) {
        EXPECT_GE(std::abs(label.Centre.Y - 20), label.Height / 2);
        if (regions[label.Region].Value == 2) {
            legs.emplace_back(label.Centre.Y > 20, label.Centre.X < 30);
        }
    }
    EXPECT_THAT(legs, testing::UnorderedElementsAre(std::pair(false, true), std::pair(true, true),
                                                    std::pair(true, false)));
}

TEST(Labels, StandOnBothSidesOfANarrowNeckAndOfACutHoweverNear) {
    const PaintedRegions regions = FindRegions(Values({"22222222222",  //
                                                       "21111211112",  //
                                                       "21111211112",  //
                                                       "21111111112",  //
                                                       "21111211112",  //
                                                       "22222222222"}));
    LabelRules rules = Rules(4, 0);
    rules.LegibleHeight = 2;
    const auto halvesOfPaint1 = [&] {
        std::set<bool> halves;
        for (const PlanLabel& label : test::LabelsFor(regions, TraceLines(regions.Ids), rules)) {
            if (regions[label.Region].Value == 1) {
                halves.insert(label.Centre.X > 5.5);
            }
        }
        return halves;
    };
    EXPECT_EQ(halvesOfPaint1().size(), 2U);
    rules.Cuts.Columns = {6};
    EXPECT_EQ(halvesOfPaint1().size(), 2U);
}

TEST(RoundMarks, StandWhereTheyCoverNoSymbol) {
    const CutLine cut{{50, 0}, {50, 100}};
    EXPECT_THAT(PlaceMarks(cut, 2, {}), ElementsAre(PlanPoint{50, 20}, PlanPoint{50, 80}));
    const std::vector<PlanRect> symbols = {{49, 18, 52, 21}, {10, 79, 20, 81}, {51, 78, 53, 90}};
    const auto marks = PlaceMarks(cut, 2, symbols);
    EXPECT_NEAR(marks[0].Y, 23, 0.51);
    EXPECT_NEAR(marks[1].Y, 76, 0.51);
    // Where all is taken they still stand in their halves.
    const auto crowded = PlaceMarks(cut, 2, std::vector<PlanRect>{{40, -5, 60, 105}});
    EXPECT_LT(crowded[0].Y, 50);
    EXPECT_GT(crowded[1].Y, 50);
}

TEST(SymbolRooms, SayHowTallASymbolIsPrinted) {
    // Of a lone stipple.
    EXPECT_DOUBLE_EQ(RoomInStipple(4, 0.75).Width, 2);
    EXPECT_DOUBLE_EQ(RoomInStipple(8, 0.75).Height, 6);
    struct Case {
        double Mm;  // of the room's height
        double Symbol;
    };
    // 0.13 mm of every height is the lines' own.
    for (const Case& c : {Case{5, 3}, Case{3.13, 2.5}, Case{2.63, 2}, Case{2.4, 2}, Case{2.33, 2},
                          Case{2.23, 1.9}, Case{0.1, 0.06}}) {
        EXPECT_NEAR((SymbolRoom{100, 1, 0.5}.SymbolMm(PrintScale::OfPixel(c.Mm))), c.Symbol, 1e-9);
    }
    const SymbolRoom room{3, 9, 0.7};
    EXPECT_NEAR(room.SymbolMm(PrintScale::OfPixel(room.LegiblePixelMm())), 2, 1e-9);
}

}  // namespace
}  // namespace vendrel
