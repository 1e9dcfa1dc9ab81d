#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "paintable/area_figures.h"
#include "paintable/growing.h"
#include "paintable/make_paintable.h"
#include "paintable/merging.h"
#include "paintable/print_areas.h"
#include "regions/values.h"

namespace vendrel {
namespace {

using test::RowsOf;
using test::Values;

// Stipples of 6 pixels; digit d is a gray of 20 d, both as a stipple's color and as a paint.
struct Canvas {
    explicit Canvas(const std::vector<std::string_view>& colors, PixelLimits limits = {4 * 36, 5})
        : Canvas(Values(colors), limits) {}
    Canvas(const ValueGrid& colors, PixelLimits limits)
        : Table(Grays(), Grays()),
          Picture{colors, colors, {}},
          Terms{{std::vector(Columns(), 6), std::vector(Rows(), 6)}, limits, {}} {
        Terms.ProtectedLimits = {limits.Smallest / 3, limits.Narrowest / 3};
    }
    static std::vector<Color> Grays() {
        std::vector<Color> grays(10);
        for (int d = 0; d < 10; ++d) {
            grays[static_cast<std::size_t>(d)] = Rgb(20 * d, 20 * d, 20 * d);
        }
        return grays;
    }
    [[nodiscard]] std::size_t Columns() const {
        return static_cast<std::size_t>(Picture.Paints.Across()) + 1;
    }
    [[nodiscard]] std::size_t Rows() const {
        return static_cast<std::size_t>(Picture.Paints.Down()) + 1;
    }
    [[nodiscard]] ValueGrid Paintable(int detail = kUsualDetail) const {
        return MakePaintable(Picture, Table, Terms, detail);
    }

    SeenTable Table;
    StipplePicture Picture;
    AreaTerms Terms;
};

TEST(Limits, FollowTheScale) {
    const PixelLimits limits = LimitsInPixels({25, 2}, PrintScale::OfCanvas(40, 960));
    EXPECT_EQ(limits.Smallest, 144);
    EXPECT_DOUBLE_EQ(limits.Narrowest, 4.8);
    EXPECT_EQ(LimitsInPixels({25, 2}, PrintScale::OfPixel(0.41)).Smallest, 149);
    EXPECT_EQ(SidesOf(18, 6, 3), (std::vector{7, 6, 5}));
}

TEST(Paintable, MergesOrGrowsTheSmallest) {
    struct Case {
        const char* What;
        std::vector<std::string_view> Colors;
        std::vector<std::string_view> Expected;
        int Detail = kUsualDetail;
    };
    const std::vector<Case> cases = {
        {"large areas stay", {"1144", "1144"}, {"1144", "1144"}},
        {"a spot joins what it differs from least",
         {"1111333", "1112333", "1111333"},
         {"1111333", "1111333", "1111333"}},
        {"of two alike the one with the longer border",
         {"1113333", "1112333", "1111333"},
         {"1113333", "1111333", "1111333"}},
        {"a diagonal is no connection",
         {"111111", "155111", "111551", "111111"},
         {"111111", "111111", "111111", "111111"},
         0},
        {"small ones join in a paint that suits them",
         {"88888888", "88135588", "88888888"},
         {"88888888", "88555588", "88888888"},
         0},
        {"three dark stipples grow to a square",
         {"999999", "991199", "991999", "999999"},
         {"999999", "991199", "991199", "999999"}},
        {"and do not where all is to be merged",
         {"999999", "991199", "991999", "999999"},
         {"999999", "999999", "999999", "999999"},
         0},
        {"a grid too small for the limits is one area", {"12", "11"}, {"11", "11"}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(RowsOf(Canvas(c.Colors).Paintable(c.Detail)), RowsOf(Values(c.Expected)))
            << c.What;
    }
}

// The paints after the area of one stipple has grown; nothing where it could not.
std::vector<std::string> Grown(const Canvas& canvas, int x, int y) {
    AreaMap map(canvas.Picture, canvas.Table, canvas.Terms);
    std::vector<int> touched;
    const bool grown = Grow(map, map.AreaAt(map.CellAt(x, y)), SeenSum{1} << 40, touched);
    return grown ? RowsOf(map.Paints()) : std::vector<std::string>();
}

TEST(Growing, LeavesNeighborsWholeAndLargeEnough) {
    const std::vector<std::string> none;
    // Of stipples that cost the same, the first.
    EXPECT_EQ(Grown(Canvas({"9999", "9919", "9999", "9999"}), 2, 1),
              RowsOf(Values({"9999", "9119", "9119", "9999"})));
    // The row of 3 is cheaper than the 9 around it, but its middle holds it together.
    EXPECT_EQ(Grown(Canvas({"99919999", "33333333", "99999999"}), 3, 0),
              RowsOf(Values({"11119999", "33333333", "99999999"})));
    // Four stipples of 3 can spare none, five can.
    EXPECT_EQ(Grown(Canvas({"1333", "9993", "9999"}), 0, 0),
              RowsOf(Values({"1333", "1193", "1999"})));
    EXPECT_EQ(Grown(Canvas({"1333", "9933", "9999"}), 0, 0),
              RowsOf(Values({"1133", "1133", "9999"})));
    // Another of its paint is as good as size.
    EXPECT_EQ(Grown(Canvas({"999999", "991999", "999199", "999999"}), 2, 1),
              RowsOf(Values({"999999", "991199", "999199", "999999"})));
    // A brush two stipples broad: the 3 keeps a square of two by two.
    EXPECT_EQ(Grown(Canvas({"13399", "13399", "99999"}, {2 * 36, 10}), 0, 0), none);
    EXPECT_EQ(Grown(Canvas({"133399", "133399", "999999"}, {2 * 36, 10}), 0, 0),
              RowsOf(Values({"113399", "113399", "999999"})));
}

TEST(Merging, GivesAnAreaUpForTheLeast) {
    const Canvas canvas({"11244", "11244", "11244"});
    const AreaMap map(canvas.Picture, canvas.Table, canvas.Terms);
    const MergePlan whole = PlanMerge(map, 1);
    EXPECT_TRUE(whole.Steps.empty());
    EXPECT_EQ(whole.Into, 0);
    EXPECT_EQ(whole.Paint, 1);
    EXPECT_EQ(whole.Cost, 3 * canvas.Table.Of(2)[1] - 3 * kSideCost);
    // A band between two areas, half like each.
    const Canvas band({"111278888", "111278888", "111278888", "111278888"}, {9 * 36, 5});
    StipplePicture picture = band.Picture;
    picture.Paints = Values({"111558888", "111558888", "111558888", "111558888"});
    AreaMap parted(picture, band.Table, band.Terms);
    const MergePlan parts = PlanMerge(parted, 1);
    EXPECT_EQ(parts.Steps.size(), 8U);
    std::vector<int> touched;
    Merge(parted, 1, parts, touched);
    EXPECT_EQ(RowsOf(parted.Paints()),
              RowsOf(Values({"111188888", "111188888", "111188888", "111188888"})));
    const Canvas lone({"22", "22"});
    EXPECT_FALSE(PlanMerge(AreaMap(lone.Picture, lone.Table, lone.Terms), 0).Possible);
}

TEST(Paintable, HoldsTheLimitsAThirdWhereProtected) {
    Canvas canvas({"99999999", "93399399", "99999999"}, {6 * 36, 5});
    canvas.Picture.Protected = Values({"00000000", "01000000", "00000000"});
    EXPECT_EQ(RowsOf(canvas.Paintable(0)), RowsOf(Values({"99999999", "93399999", "99999999"})));
}

// Whether all pixels that a disc covers, at least in part, are of the region under its center.
bool DiscFits(const ValueGrid& ids, double x, double y, double radius) {
    const int id = ids(static_cast<int>(x), static_cast<int>(y));
    for (int j = static_cast<int>(std::floor(y - radius)); j < y + radius; ++j) {
        for (int i = static_cast<int>(std::floor(x - radius)); i < x + radius; ++i) {
            const double apart = std::hypot(x - std::clamp<double>(x, i, i + 1),
                                            y - std::clamp<double>(y, j, j + 1));
            if (apart < radius && (!ids.Holds(i, j) || ids(i, j) != id)) {
                return false;
            }
        }
    }
    return true;
}

// Areas of pixels and their limits, told apart by nothing but the pixels themselves.
void ExpectWithin(const ValueGrid& pixels, const PixelLimits& limits) {
    const Regions regions = FindRegions(pixels);
    for (int id = 0; id < regions.Count(); ++id) {
        bool holdsDisc = false;
        for (int y = 0; y <= 2 * pixels.Down() + 1 && !holdsDisc; ++y) {
            for (int x = 0; x <= 2 * pixels.Across() + 1 && !holdsDisc; ++x) {
                holdsDisc = regions.Ids(x / 2, y / 2) == id &&
                            DiscFits(regions.Ids, x / 2.0, y / 2.0, limits.Narrowest / 2);
            }
        }
        EXPECT_TRUE(holdsDisc || regions.Count() == 1);
        EXPECT_TRUE(regions[id].Size >= limits.Smallest || regions.Count() == 1);
    }
}

ValueGrid RandomColors(std::mt19937& random, int across, int down) {
    ValueGrid colors(across - 1, down - 1);
    for (int& color : colors.All()) {
        color = static_cast<int>(random() % 4) * 2;
    }
    return colors;
}

// Each stipple's square, then strokes and bare pixels wherever chance puts them.
ValueGrid Daubed(const ValueGrid& grid, int size, std::mt19937& random) {
    ValueGrid pixels((grid.Across() + 1) * size - 1, (grid.Down() + 1) * size - 1);
    for (int y = 0; y <= pixels.Down(); ++y) {
        for (int x = 0; x <= pixels.Across(); ++x) {
            const int step = static_cast<int>(random() % 7);
            const auto near = [&](int at, int shift, int last) {
                return std::clamp(StippleAt(at, size, last + 1) + shift, 0, last);
            };
            pixels(x, y) = step == 0 ? -1
                                     : grid(near(x,
                                                 step == 1   ? 1
                                                 : step == 2 ? -1
                                                             : 0,
                                                 grid.Across()),
                                            near(y,
                                                 step == 1   ? 1
                                                 : step == 3 ? -1
                                                             : 0,
                                                 grid.Down()));
        }
    }
    return pixels;
}

TEST(Paintable, KeepsTheLimitsOnTheGridAndInPrint) {
    std::mt19937 random(5);
    for (const PixelLimits limits : {PixelLimits{4 * 36, 4.8}, PixelLimits{100, 8}}) {
        for (const int detail : {0, kUsualDetail, kMostDetail}) {
            Canvas canvas(RandomColors(random, 12, 9), limits);
            canvas.Terms.Sides = {SidesOf(72, 6, 12), SidesOf(54, 6, 9)};
            const ValueGrid grid = canvas.Paintable(detail);
            const ValueGrid print =
                PaintsForPrint({Daubed(grid, 6, random), grid, {}, 6}, limits, limits);
            ExpectWithin(print, limits);
            EXPECT_EQ(FindRegions(print).Count(), FindRegions(grid).Count());
        }
    }
}

TEST(PrintAreas, TakeInWhatTheBrushLeft) {
    const ValueGrid grid = Values({"11", "12"});
    // Stipples of 4 pixels; 9 is bare, 1 has taken a corner of 2, and a crumb of 2 lies across.
    const BrushedPainting painting{Values({"99999999",  //
                                           "91111119",  //
                                           "91111111",  //
                                           "91111111",  //
                                           "91111111",  //
                                           "91211112",  //
                                           "91111222",  //
                                           "91111222"}),
                                   grid,
                                   {},
                                   4};
    EXPECT_EQ(RowsOf(PaintsForPrint(painting, {6, 1}, {6, 1})),
              RowsOf(Values({"11111111", "11111111", "11111111", "11111111", "11111111", "11111112",
                             "11111222", "11111222"})));
    // With less than it needs, a stipple stays square.
    EXPECT_EQ(RowsOf(PaintsForPrint(painting, {8, 1}, {8, 1})),
              RowsOf(Values({"11111111", "11111111", "11111111", "11111111", "11111111", "11111222",
                             "11111222", "11111222"})));
    // Where the brush joins areas that the grid keeps apart, they are parted again.
    const ValueGrid apart = Values({"12", "21"});
    const ValueGrid print =
        PaintsForPrint({Values({"1112", "1112", "2111", "2211"}), apart, {}, 2}, {1, 1}, {1, 1});
    EXPECT_EQ(FindRegions(print).Count(), 4);
}

TEST(AreaFigures, AreThoseOfTheCanvas) {
    const AreaFigures figures =
        MeasureAreas(Values({"11122", "11122", "11133"}), PrintScale::OfPixel(2));
    EXPECT_EQ(figures.Count(), 3);
    EXPECT_DOUBLE_EQ(figures.SmallestMm2, 8);
    EXPECT_DOUBLE_EQ(figures.NarrowestMm, 2);
    EXPECT_EQ(figures.CountBelow(16), 1);
    EXPECT_EQ(figures.CountBelow(PaintLimits{8, 4.5}), 2);
}

}  // namespace
}  // namespace vendrel
