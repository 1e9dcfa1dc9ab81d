#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <random>
#include <span>
#include <utility>
#include <vector>

#include "eye/blur.h"
#include "eye/mean_difference.h"
#include "eye/palette_by_eye.h"
#include "eye/seen_difference.h"
#include "eye/seen_table.h"

namespace vendrel {
namespace {

using testing::ElementsAre;

TEST(LabColors, AreThoseOfDaylight) {
    const std::vector<std::pair<Color, Lab>> cases = {{Rgb(255, 255, 255), {100, 0, 0}},
                                                      {Rgb(0, 0, 0), {0, 0, 0}},
                                                      {Rgb(255, 0, 0), {53.24, 80.09, 67.20}},
                                                      {Rgb(0, 0, 255), {32.30, 79.19, -107.86}},
                                                      {Rgb(119, 119, 119), {50.03, 0, 0}}};
    for (const auto& [color, expected] : cases) {
        const Lab lab = LabOf(color);
        EXPECT_NEAR(lab.L, expected.L, 0.01) << color;
        EXPECT_NEAR(lab.A, expected.A, 0.01) << color;
        EXPECT_NEAR(lab.B, expected.B, 0.01) << color;
    }
}

// The pairs that Sharma, Wu and Dalal published with the formula.
TEST(Ciede2000, GivesThePublishedDifferences) {
    const std::vector<std::array<double, 7>> pairs = {
        {50.0000, 2.6772, -79.7751, 50.0000, 0.0000, -82.7485, 2.0425},
        {50.0000, 3.1571, -77.2803, 50.0000, 0.0000, -82.7485, 2.8615},
        {50.0000, 2.8361, -74.0200, 50.0000, 0.0000, -82.7485, 3.4412},
        {50.0000, -1.3802, -84.2814, 50.0000, 0.0000, -82.7485, 1.0000},
        {50.0000, -1.1848, -84.8006, 50.0000, 0.0000, -82.7485, 1.0000},
        {50.0000, -0.9009, -85.5211, 50.0000, 0.0000, -82.7485, 1.0000},
        {50.0000, 0.0000, 0.0000, 50.0000, -1.0000, 2.0000, 2.3669},
        {50.0000, -1.0000, 2.0000, 50.0000, 0.0000, 0.0000, 2.3669},
        {50.0000, 2.4900, -0.0010, 50.0000, -2.4900, 0.0009, 7.1792},
        {50.0000, 2.4900, -0.0010, 50.0000, -2.4900, 0.0010, 7.1792},
        {50.0000, 2.4900, -0.0010, 50.0000, -2.4900, 0.0011, 7.2195},
        {50.0000, 2.4900, -0.0010, 50.0000, -2.4900, 0.0012, 7.2195},
        {50.0000, -0.0010, 2.4900, 50.0000, 0.0009, -2.4900, 4.8045},
        {50.0000, -0.0010, 2.4900, 50.0000, 0.0010, -2.4900, 4.8045},
        {50.0000, -0.0010, 2.4900, 50.0000, 0.0011, -2.4900, 4.7461},
        {50.0000, 2.5000, 0.0000, 50.0000, 0.0000, -2.5000, 4.3065},
        {50.0000, 2.5000, 0.0000, 73.0000, 25.0000, -18.0000, 27.1492},
        {50.0000, 2.5000, 0.0000, 61.0000, -5.0000, 29.0000, 22.8977},
        {50.0000, 2.5000, 0.0000, 56.0000, -27.0000, -3.0000, 31.9030},
        {50.0000, 2.5000, 0.0000, 58.0000, 24.0000, 15.0000, 19.4535},
        {50.0000, 2.5000, 0.0000, 50.0000, 3.1736, 0.5854, 1.0000},
        {50.0000, 2.5000, 0.0000, 50.0000, 3.2972, 0.0000, 1.0000},
        {50.0000, 2.5000, 0.0000, 50.0000, 1.8634, 0.5757, 1.0000},
        {50.0000, 2.5000, 0.0000, 50.0000, 3.2592, 0.3350, 1.0000},
        {60.2574, -34.0099, 36.2677, 60.4626, -34.1751, 39.4387, 1.2644},
        {63.0109, -31.0961, -5.8663, 62.8187, -29.7946, -4.0864, 1.2630},
        {61.2901, 3.7196, -5.3901, 61.4292, 2.2480, -4.9620, 1.8731},
        {35.0831, -44.1164, 3.7933, 35.0232, -40.0716, 1.5901, 1.8645},
        {22.7233, 20.0904, -46.6940, 23.0331, 14.9730, -42.5619, 2.0373},
        {36.4612, 47.8580, 18.3852, 36.2715, 50.5065, 21.2231, 1.4146},
        {90.8027, -2.0831, 1.4410, 91.1528, -1.6435, 0.0447, 1.4441},
        {90.9257, -0.5406, -0.9208, 88.6381, -0.8985, -0.7239, 1.5381},
        {6.7747, -0.2908, -2.4247, 5.8714, -0.0985, -2.2286, 0.6377},
        {2.0776, 0.0795, -1.1350, 0.9033, -0.0636, -0.5514, 0.9082}};
    for (const auto& p : pairs) {
        const Lab one{p[0], p[1], p[2]};
        const Lab other{p[3], p[4], p[5]};
        EXPECT_NEAR(Ciede2000(one, other), p[6], 0.00005) << p[0] << ' ' << p[1] << ' ' << p[2];
        EXPECT_NEAR(Ciede2000(other, one), p[6], 0.00005) << p[0] << ' ' << p[1] << ' ' << p[2];
    }
}

TEST(SeenDifferences, CountHalfOfWhatThePaintIsMoreColorful) {
    const Lab gray{60, 0, 0};
    const Lab lilac{60, 8, -6};
    EXPECT_DOUBLE_EQ(SeenDifference(gray, lilac), Ciede2000(gray, lilac) + 5);
    EXPECT_DOUBLE_EQ(SeenDifference(lilac, gray), Ciede2000(gray, lilac));
}

TEST(MeanDifferences, WeighPixelsAlike) {
    const std::vector<Color> photo = {kWhite, kWhite, kBlack, kWhite};
    const std::vector<Color> painting = {kBlack, kWhite, kBlack, kBlack};
    EXPECT_NEAR(MeanDifference(photo, painting), 50, 1e-3);
    EXPECT_EQ(MeanDifference({}, {}), 0);
}

TEST(Blurring, MixesLight) {
    Surface picture(41, 9, kWhite);
    picture.FillRect(0, 0, 20, 9, kBlack);
    const Surface blurred = Blurred(picture, 2);
    EXPECT_EQ(blurred.Get(5, 4), kBlack);
    EXPECT_EQ(blurred.Get(35, 0), kWhite);
    // Half of the light is no middle gray but lighter.
    EXPECT_NEAR(RedOf(blurred.Get(19, 4)) + RedOf(blurred.Get(20, 4)), 2 * 187, 6);
    EXPECT_EQ(Blurred(picture, 0), picture);
}

TEST(SeenTables, HoldWhatTheFormulaGives) {
    std::mt19937 random(3);
    std::vector<Color> colors = {Rgb(0, 0, 0),    Rgb(255, 255, 255), Rgb(0, 0, 255),
                                 Rgb(90, 90, 90), Rgb(0, 255, 255),   Rgb(255, 0, 0)};
    while (colors.size() < 300) {
        colors.push_back(static_cast<Color>(random() & 0xFFFFFF));
    }
    const SeenTable table(colors, colors);
    for (int c = 0; c < table.ColorCount(); ++c) {
        for (int p = 0; p < table.PaintCount(); ++p) {
            const auto from = static_cast<std::size_t>(c);
            const auto to = static_cast<std::size_t>(p);
            const double exact = SeenDifference(LabOf(colors[from]), LabOf(colors[to]));
            EXPECT_NEAR(table.Of(c)[to] / static_cast<double>(kSeenUnit), exact,
                        0.005 + exact / 1000)
                << colors[from] << ' ' << colors[to];
        }
    }
    EXPECT_EQ(
        SeenTable(std::vector{Rgb(9, 9, 9)}, std::vector{kWhite, kBlack, kBlack}).NearestTo(0), 1);
}

TEST(DistinctColors, NameEveryStipplesColor) {
    const DistinctColors distinct = FindDistinctColors(std::vector<Color>{7, 3, 7, 5});
    EXPECT_THAT(distinct.Colors, ElementsAre(3, 5, 7));
    EXPECT_THAT(distinct.IndexOf, ElementsAre(2, 0, 2, 1));
    const ColorBins bins = BinColors(std::vector<Color>{Rgb(1, 8, 0), Rgb(4, 9, 0), Rgb(9, 8, 0)});
    EXPECT_THAT(bins.Colors, ElementsAre(Rgb(3, 9, 0), Rgb(9, 8, 0)));
    EXPECT_THAT(bins.Stipples, ElementsAre(2, 1));
}

constexpr Color Gray(int level) {
    return Rgb(level, level, level);
}

TEST(PaintsByEye, AreThoseThatServeTheStipples) {
    const std::vector<Color> paints = {Gray(0),   Gray(60),  Gray(100),     Gray(140),
                                       Gray(255), Gray(252), Rgb(255, 0, 0)};
    struct Case {
        std::vector<Color> Colors;
        std::vector<int> Stipples;
        int Count;
        std::vector<int> Expected;
    };
    const std::vector<Case> cases = {
        {{Gray(60), Gray(140)}, {9, 9}, 2, {1, 3}},
        {{Gray(60), Gray(140)}, {9, 9}, 9, {1, 3}},                // no other helps
        {{Gray(60), Gray(140)}, {9, 9}, 1, {2}},                   // between the two
        {{Gray(60), Gray(140), Gray(255)}, {9, 9, 4}, 3, {1, 3}},  // less than a handful
        {{Gray(255)}, {2}, 1, {4}},                                // but one stays
        {{Gray(60)}, {9}, 0, {}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(ChoosePaintsByEye(SeenTable(c.Colors, paints), c.Stipples, c.Count), c.Expected);
    }
    EXPECT_THAT(ChoosePaintsByEye(SeenTable(std::vector{Gray(1)}, {}), std::vector{9}, 3),
                ElementsAre());
}

std::int64_t SumOver(const SeenTable& table, std::span<const int> stipples,
                     const std::vector<int>& paints) {
    std::int64_t sum = 0;
    for (int c = 0; c < table.ColorCount(); ++c) {
        int least = 65535;
        for (const int paint : paints) {
            least = std::min<int>(least, table.Of(c)[static_cast<std::size_t>(paint)]);
        }
        sum += std::int64_t{least} * stipples[static_cast<std::size_t>(c)];
    }
    return sum;
}

TEST(PaintsByEye, BuysOnlyWhatIsWorthIt) {
    std::mt19937 random(5);
    std::vector<Color> colors;
    for (int i = 0; i < 120; ++i) {
        colors.push_back(static_cast<Color>(random() & 0xFFFFFF));
    }
    const std::vector<int> stipples(colors.size(), 10);
    const SeenTable table(colors, std::span(colors).first(40));
    std::size_t before = 40;
    for (const auto& [worth, most] :
         {std::pair{0.0, 12}, {0.2, 12}, {0.4, 12}, {0.4, 2}, {0.4, 0}, {20.0, 12}}) {
        BuyTerms terms{std::vector<bool>(40), worth, most};
        std::fill_n(terms.IsOwned.begin(), 15, true);
        const std::vector<int> chosen = ChoosePaintsByEye(table, stipples, 12, terms);
        const std::int64_t sum = SumOver(table, stipples, chosen);
        std::size_t bought = 0;
        for (const int paint : chosen) {
            if (paint < 15) {
                continue;
            }
            ++bought;
            std::vector<int> without = chosen;
            std::erase(without, paint);
            EXPECT_GT(SumOver(table, stipples, without) - sum,
                      std::llround(worth * kSeenUnit * 1200));
        }
        EXPECT_LE(bought, static_cast<std::size_t>(most));
        EXPECT_LE(bought, before) << worth;
        before = bought;
    }
    EXPECT_EQ(before, 0U);
}

TEST(PaintsByEye, CannotBeExchangedForBetterOnes) {
    std::mt19937 random(11);
    std::vector<Color> colors;
    std::vector<int> stipples;
    for (int i = 0; i < 80; ++i) {
        colors.push_back(static_cast<Color>(random() & 0xFFFFFF));
        stipples.push_back(5 + static_cast<int>(random() % 50));
    }
    const SeenTable table(colors, std::span(colors).first(30));
    const std::vector<int> chosen = ChoosePaintsByEye(table, stipples, 6);
    ASSERT_EQ(chosen.size(), 6U);
    const std::int64_t sum = SumOver(table, stipples, chosen);
    for (std::size_t out = 0; out < chosen.size(); ++out) {
        for (int in = 0; in < table.PaintCount(); ++in) {
            std::vector<int> other = chosen;
            other[out] = in;
            EXPECT_GE(SumOver(table, stipples, other), sum) << chosen[out] << " for " << in;
        }
    }
}

}  // namespace
}  // namespace vendrel
