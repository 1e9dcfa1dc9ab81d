#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "regions/borders.h"
#include "regions/crumbs.h"
#include "regions/inscribed_discs.h"
#include "regions/values.h"

namespace vendrel {
namespace {

using test::Values;
using testing::DoubleEq;
using testing::ElementsAre;

TEST(FindRegions, NumbersRegionsByTheirFirstPlaces) {
    const ValueGrid values = Values({"11211",  //
                                     "12122",  //
                                     "21212"});
    const Regions sides = FindRegions(values);
    EXPECT_EQ(sides.Ids, Values({"00122",  //
                                 "03455",  //
                                 "67895"}));
    EXPECT_EQ(sides[0], (Region{1, 3}));
    EXPECT_EQ(sides[5], (Region{2, 3}));
    const Regions corners = FindRegions(values, Connection::Corners);
    EXPECT_EQ(corners.Ids, Values({"00100",  //
                                   "01011",  //
                                   "10101"}));
    EXPECT_THAT(corners.List, ElementsAre(Region{1, 8}, Region{2, 7}));
}

TEST(FindRegions, FollowsArmsThatMeetLate) {
    EXPECT_EQ(FindRegions(Values({"12131", "12131", "11111"})).Ids,
              Values({"01020", "01020", "00000"}));
    EXPECT_EQ(FindRegions(Values({"21212", "22222", "11111"}), Connection::Sides).Ids,
              Values({"01020", "00000", "33333"}));
}

TEST(FindBorders, MeasuresEveryNeighbor) {
    const Borders borders = FindBorders(FindRegions(Values({"1122",  //
                                                            "1322",  //
                                                            "1111"})));
    EXPECT_THAT(borders.Of(0), ElementsAre(Border{1, 3}, Border{2, 3}));
    EXPECT_THAT(borders.Of(1), ElementsAre(Border{0, 3}, Border{2, 1}));
    EXPECT_THAT(borders.Of(2), ElementsAre(Border{0, 3}, Border{1, 1}));
}

TEST(Crumbs, JoinTheValueWithTheLongestBorder) {
    const Regions regions = FindRegionsWithoutCrumbs(Values({"11122",  //
                                                             "13422",  //
                                                             "11122"}),
                                                     3);
    EXPECT_EQ(regions.Ids, Values({"00011", "00011", "00011"}));
    EXPECT_THAT(regions.List, ElementsAre(Region{1, 9}, Region{2, 6}));
    // A picture of nothing but crumbs stays as it is.
    EXPECT_EQ(FindRegionsWithoutCrumbs(Values({"12", "21"}), 5).List.size(), 4U);
}

// The radius at a point, by way of every place outside the region.
double PlainRadius(const ValueGrid& ids, double x, double y, int id) {
    double radius = std::min({x, y, ids.Across() + 1 - x, ids.Down() + 1 - y});
    for (int j = 0; j <= ids.Down(); ++j) {
        for (int i = 0; i <= ids.Across(); ++i) {
            if (ids(i, j) != id) {
                radius = std::min(radius, std::hypot(x - std::clamp<double>(x, i, i + 1),
                                                     y - std::clamp<double>(y, j, j + 1)));
            }
        }
    }
    return radius;
}

TEST(LargestDiscs, AreTheLargestThereAre) {
    std::mt19937 random(7);
    for (int run = 0; run < 30; ++run) {
        ValueGrid values(12, 9);
        for (int& value : values.All()) {
            value = random() % 8 == 0 ? 1 : 0;
        }
        const Regions regions = FindRegions(values);
        std::vector<double> plain(regions.List.size());
        for (int y = 1; y < 20; ++y) {
            for (int x = 1; x < 26; ++x) {
                const int id = regions.Ids(x / 2, y / 2);
                double& radius = plain[static_cast<std::size_t>(id)];
                radius = std::max(radius, PlainRadius(regions.Ids, x / 2.0, y / 2.0, id));
            }
        }
        const std::vector<InscribedDisc> discs = FindLargestDiscs(regions);
        for (int id = 0; id < regions.Count(); ++id) {
            const InscribedDisc& disc = discs[static_cast<std::size_t>(id)];
            EXPECT_THAT(disc.Radius, DoubleEq(plain[static_cast<std::size_t>(id)]));
            EXPECT_THAT(PlainRadius(regions.Ids, disc.X, disc.Y, id), DoubleEq(disc.Radius));
        }
    }
}

}  // namespace
}  // namespace vendrel
