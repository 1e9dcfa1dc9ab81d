// Smooth lines, and symbols among them.
#include "plan/smooth_lines.h"

#include <gmock/gmock.h>

#include <random>

#include "plan/label_placement.h"
#include "plan/line_checks.h"
#include "regions/values.h"

namespace vendrel {
namespace {

using test::ExpectPartition;
using test::Values;
using testing::Contains;

constexpr int kStipple = 6;
constexpr SmoothRules kRules{kStipple, 4.8};

// Stipples of six pixels.
PaintedRegions Painted(const ValueGrid& stipples) {
    PixelGrid pixels((stipples.Across() + 1) * kStipple - 1, (stipples.Down() + 1) * kStipple - 1);
    for (int y = 0; y <= pixels.Down(); ++y) {
        for (int x = 0; x <= pixels.Across(); ++x) {
            pixels(x, y) = stipples(x / kStipple, y / kStipple);
        }
    }
    return FindRegions(pixels);
}
PlanLines Smooth(const PaintedRegions& areas) {
    return SmoothLines(areas, TraceLines(areas.Ids), kRules);
}

TEST(SmoothLines, ShareOutTheWholePictureWithoutCrossing) {
    for (unsigned seed = 0; seed < 12; ++seed) {
        std::mt19937 random(seed);
        ValueGrid stipples(13, 9);
        for (int& stipple : stipples.All()) {
            stipple = 1 + static_cast<int>(random() % (2 + seed % 3));
        }
        // Pixels of their own between the stipples too, as the brush leaves them.
        PaintedRegions areas = Painted(stipples);
        if (seed % 2 == 1) {
            for (int i = 0; i < 60; ++i) {
                areas.Ids(int(random() % 84), int(random() % 60)) = 1000 + i;
            }
            areas = FindRegions(areas.Ids);
        }
        const PlanLines stairs = TraceLines(areas.Ids);
        const PlanLines lines = Smooth(areas);
        ExpectPartition(lines, areas);
        ASSERT_EQ(lines.Chains.size(), stairs.Chains.size());
        for (std::size_t i = 0; i < lines.Chains.size(); ++i) {
            const PlanChain& chain = lines.Chains[i];
            if (chain.IsEdge()) {
                EXPECT_EQ(chain.Points, stairs.Chains[i].Points);
            } else if (!chain.IsLoop) {
                EXPECT_EQ(chain.Points.front(), stairs.Chains[i].Points.front());
                EXPECT_EQ(chain.Points.back(), stairs.Chains[i].Points.back());
            }
        }
    }
}

TEST(SmoothLines, MakeAStraightLineOfStairsAndARoundOneOfADisc) {
    const PlanLines aslant =
        Smooth(Painted(Values({"1222222222", "1122222222", "1112222222", "1111222222", "1111122222",
                               "1111112222", "1111111222", "1111111122", "1111111112"})));
    for (const PlanChain& chain : aslant.Chains) {
        for (const PlanPoint& point : chain.Points) {
            const bool inside = point.X > 15 && point.X < 45 && point.Y > 15 && point.Y < 45;
            EXPECT_TRUE(!inside || std::abs(point.X - point.Y - 3) < 0.8)
                << point.X << ' ' << point.Y;
        }
    }
    const PlanLines disc =
        Smooth(Painted(Values({"11111111", "11122111", "11222211", "12222221", "12222221",
                               "11222211", "11122111", "11111111"})));
    const PlanLine round = PointsOf(disc, disc.Rings[1][0]);
    EXPECT_GE(round.size(), 24U);
    for (const PlanPoint& point : round) {
        EXPECT_NEAR(std::hypot(point.X - 24, point.Y - 24), 17.3, 1.9);
    }
}

TEST(SmoothLines, KeepCornersOfLongStraightRunsAndTheWidthOfNarrowParts) {
    // A corner of 60 by 60 pixels, and a strip of one stipple that leads to a square.
    const PaintedRegions areas =
        Painted(Values({"1111111111111", "1222222222222", "1222222222222", "1222222222222",
                        "1222233333222", "1222233333222", "1222233333222", "1222222322222",
                        "1222222322222", "1222222222222", "1222222222222", "1222222222222"}));
    const PlanLines lines = Smooth(areas);
    ExpectPartition(lines, areas);
    PlanLine all;
    for (const PlanChain& chain : lines.Chains) {
        all.insert(all.end(), chain.Points.begin(), chain.Points.end());
    }
    EXPECT_THAT(all, Contains(PlanPoint{6, 6}));
    for (const PlanPoint& point : all) {
        const bool atStrip = point.Y > 45 && point.Y < 49 && point.X > 30;
        EXPECT_TRUE(!atStrip || std::abs(point.X - 45) > 2.1) << point.X << ' ' << point.Y;
    }
}

LabelRules RulesOf(const PaintedRegions& areas) {
    int paints = 0;
    for (const Region& area : areas.List) {
        paints = std::max(paints, area.Value);
    }
    LabelRules rules;
    rules.Aspects = PaintAspects(paints, 0.6);
    rules.Air = {.Wanted = 0.7, .Least = 0.4, .Legible = 5, .Largest = 7};
    rules.LegibleHeight = 3;
    return rules;
}

// The least distance of a line from the middles of a box's sides and its corners.
bool StandsClear(const PlanLines& lines, const PlanRect& box, double air) {
    const PlanRect around{box.Left - air, box.Top - air, box.Right + air, box.Bottom + air};
    return std::ranges::all_of(lines.Chains, [&](const PlanChain& chain) {
        return ClipLine(chain.Points, around).empty();
    });
}

TEST(Labels, StandInsideTheirCurvesWithTheAirThatThereIs) {
    for (unsigned seed = 0; seed < 6; ++seed) {
        std::mt19937 random(seed);
        ValueGrid stipples(15, 9);
        for (int& stipple : stipples.All()) {
            stipple = 1 + static_cast<int>(random() % 2);
        }
        const PaintedRegions areas = Painted(stipples);
        const PlanLines lines = Smooth(areas);
        const LabelRules rules = RulesOf(areas);
        for (const PlanLabel& label : test::LabelsFor(areas, lines, rules)) {
            ASSERT_FALSE(label.PointsAt);
            const PlanRect box = BoxOf(label, 0.6);
            EXPECT_TRUE(test::IsInside(lines, label.Region, label.Centre));
            const bool tall = label.Height > rules.Air.Legible;
            EXPECT_TRUE(
                StandsClear(lines, box, (tall ? rules.Air.Wanted : rules.Air.Least) - 1e-5));
        }
    }
}

TEST(Labels, TooSmallToReadStandOutsideAndPointAtTheirArea) {
    // Slits two pixels wide between two broad areas.
    PixelGrid pixels(59, 39);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 60; ++x) {
            const bool slit = x >= 28 && x < 30 && y % 14 > 2;
            pixels(x, y) = slit ? 3 + y / 14 : x < 29 ? 1 : 2;
        }
    }
    const PaintedRegions areas = FindRegions(pixels);
    const PlanLines lines = TraceLines(areas.Ids);
    LabelRules rules = RulesOf(areas);
    rules.Cuts.Rows = {20};
    const std::vector<PlanLabel> labels = test::LabelsFor(areas, lines, rules);
    std::vector<PlanRect> boxes;
    int outside = 0;
    for (const PlanLabel& label : labels) {
        const PlanRect box = BoxOf(label, 0.6);
        for (const PlanRect& other : boxes) {
            EXPECT_TRUE(box.Right < other.Left || box.Left > other.Right ||
                        box.Bottom < other.Top || box.Top > other.Bottom);
        }
        boxes.push_back(box);
        EXPECT_EQ(label.PointsAt.has_value(), areas[label.Region].Value > 2);
        if (label.PointsAt) {
            ++outside;
            EXPECT_EQ(label.Height, 5);
            EXPECT_TRUE(test::IsInside(lines, label.Region, *label.PointsAt));
            EXPECT_FALSE(test::IsInside(lines, label.Region, label.Centre));
            EXPECT_TRUE(StandsClear(lines, box, rules.Air.Wanted - 1e-5));
            EXPECT_EQ(label.Centre.Y < 20, label.PointsAt->Y < 20);
            EXPECT_EQ(LeaderOf(label, 0.6).back(), *label.PointsAt);
            // On no page without what it points at.
            const double between = (label.Centre.X + label.PointsAt->X) / 2;
            EXPECT_FALSE(IsLabelOn(label, 0.6, {70, 0, 80, 40},
                                   label.Centre.X < between ? PlanRect{0, 0, between, 40}
                                                            : PlanRect{between, 0, 60, 40}));
        }
    }
    EXPECT_EQ(outside, 4);  // the slit on the cut has one on either page
}

}  // namespace
}  // namespace vendrel
