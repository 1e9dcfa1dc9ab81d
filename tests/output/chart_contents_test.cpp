#include "output/chart_contents.h"

#include <gmock/gmock.h>

#include <numeric>

#include "output/contrast.h"
#include "paints/paints.h"

namespace vendrel {
namespace {

using testing::ElementsAre;

WorkState StateOf(const PaintList& paints, const std::vector<std::string>& rows) {
    WorkState state;
    SetPalette(state, paints);
    test::UseGrid(state, rows);
    return state;
}

TEST(Shares, AddUpToTheWholePicture) {
    EXPECT_THAT(SharesInTenths(std::vector{1, 1, 1}), ElementsAre(334, 333, 333));
    EXPECT_THAT(SharesInTenths(std::vector{1, 1999}), ElementsAre(1, 999));
    EXPECT_THAT(SharesInTenths(std::vector{1, 4999, 0}), ElementsAre(0, 1000, 0));
    EXPECT_THAT(SharesInTenths(std::vector{0, 0}), ElementsAre(0, 0));
    std::vector<int> many(50);
    std::iota(many.begin(), many.end(), 43'003);
    const std::vector<int> shares = SharesInTenths(many);
    EXPECT_EQ(std::accumulate(shares.begin(), shares.end(), 0), 1000);
    EXPECT_EQ(ShareText(7), "0.7 %");
    EXPECT_EQ(ShareText(1000), "100.0 %");
}

TEST(Chart, ListsPaintsInPaletteOrderAndCountsTheirStipples) {
    WorkState state = StateOf(
        {{1, 2, 3, "Oils", "PW6", "White", 77}, {9, 9, 9, "Inks", "K", "Jet"}}, {"212", "202"});
    const auto rows = FillChart(state, state);
    EXPECT_THAT(rows, ElementsAre(ChartRow{1, "Oils", "Oils: White [PW6]", Rgb(1, 2, 3), 1, 200},
                                  ChartRow{2, "Inks", "Inks: Jet [K]", Rgb(9, 9, 9), 4, 800}));
    EXPECT_EQ(state.PaintColors[1].CellCount, 1);
    EXPECT_EQ(state.PaintColors[2].CellCount, 4);
}

TEST(Chart, SortsByShareAndSetAndBack) {
    WorkState state = StateOf({{1, 1, 1, "Oils", "", "B"},
                               {2, 2, 2, "Inks", "", "Z"},
                               {3, 3, 3, "Oils", "", "A"},
                               {4, 4, 4, "Inks", "", "Y"}},
                              {"122334"});
    auto rows = FillChart(state, state);
    const auto order = [&rows](ChartOrder by) {
        SortChart(rows, by);
        std::string paints;
        for (const ChartRow& row : rows) {
            paints += std::to_string(row.Symbol);
        }
        return paints;
    };
    EXPECT_EQ(order(ChartOrder::Set), "4231");
    EXPECT_EQ(order(ChartOrder::Share), "2314");
    EXPECT_EQ(order(ChartOrder::Symbol), "1234");
}

TEST(Contrast, InkIsTheOneThatStandsOut) {
    const std::vector<std::pair<Color, Color>> cases = {
        {kWhite, kBlack},
        {kBlack, kWhite},
        {Rgb(255, 255, 0), kBlack},
        {Rgb(0, 0, 255), kWhite},
        {Rgb(255, 0, 0), kBlack},  // 5.3 to 1 against 4.0 to 1
        {Rgb(118, 118, 118), kBlack},
        {Rgb(117, 117, 117), kWhite},  // the lightest grey that asks for white
    };
    for (const auto& [paint, ink] : cases) {
        EXPECT_EQ(InkOn(paint), ink) << std::hex << paint;
    }
    EXPECT_NEAR(ContrastOf(kBlack, kWhite), 21.0, 1e-9);
    EXPECT_NEAR(ContrastOf(Rgb(255, 0, 0), kWhite), 4.0, 0.01);
}

}  // namespace
}  // namespace vendrel
