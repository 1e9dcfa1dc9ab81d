#include <gmock/gmock.h>

#include "paints/catalogue.h"
#include "paints/paint_list.h"
#include "paints/paint_sets.h"
#include "paints/paints.h"
#include "paints/restore.h"
#include "support/error.h"

namespace vendrel {
namespace {

/// A catalogue of three sets: Oils o1 o2, Greys g1, "Inks, dark" i1.
class PaintChoice : public testing::Test {
  protected:
    PaintChoice() {
        PaintList paints;
        for (const auto& [set, name] :
             {std::pair{"Oils", "o1"}, {"Greys", "g1"}, {"Oils", "o2"}, {"Inks, dark", "i1"}}) {
            paints.Add({1, 2, 3, set, "", name, 0});
        }
        SetCatalogue(State, std::move(paints));
        BuildPaintSets(Bench.State);
    }

    [[nodiscard]] std::string Selected() const {
        std::string names;
        for (const PaintSet& set : State.PaintSets) {
            names += set.Selected ? set.Name + ";" : "";
        }
        return names;
    }

    test::Bench Bench;
    WorkState& State = Bench.State;
};

TEST_F(PaintChoice, StartsWithThePaintListInTheOrderOfItsLines) {
    for (const auto& [file, sets, paints] :
         {std::tuple{"Inks, dark\r\nOils\r\n", "Oils;Inks, dark;", "i1 o1 o2"},
          {"Nobody's\r\n oils\r\nGreys \r\n", "", ""},
          {"Greys\nGreys", "Greys;", "g1 g1"}}) {
        BuildPaintSets(Bench.State);
        Bench.Files.Write("data/paintlist.txt", file);
        LoadPaintList(Bench.State, Bench.State, Bench.State, Bench.Screen, Bench.Program);
        EXPECT_EQ(Selected(), sets) << file;
        EXPECT_EQ(test::NamesOf(State), paints) << file;
    }
    ASSERT_EQ(Bench.Screen.Messages.size(), 1U);
    EXPECT_THAT(Bench.Screen.Messages[0].second,
                testing::HasSubstr(R"(no paint set "Nobody's", " oils", "Greys ")"));
}

TEST_F(PaintChoice, WithoutAListTheFirstSetIsSelectedAndWritten) {
    SetPalette(State, {test::Paint(1, 1, 1, "old")});
    LoadPaintList(Bench.State, Bench.State, Bench.State, Bench.Screen, Bench.Program);
    EXPECT_EQ(Selected(), "Oils;");
    EXPECT_EQ(State.PaintCount, 0);
    EXPECT_EQ(Bench.Files.Read("data/paintlist.txt"), "Oils\r\n");
    RestorePaintColors(Bench.Place);
    EXPECT_EQ(test::NamesOf(State), "o1 o2");
}

TEST_F(PaintChoice, AShippedListStandsInAndIsNeverWritten) {
    test::TempFolder shipped;
    shipped.Write("Data/paintlist.txt", "Greys\r\n");
    const ProgramFolder folder(Bench.Files.Path(), shipped.Path());
    LoadPaintList(State, State, State, Bench.Screen, folder);
    EXPECT_EQ(Selected(), "Greys;");
    EXPECT_FALSE(folder.Exists("data/paintlist.txt"));
    State.PaintSets[3].Selected = true;
    SavePaintList(State, folder);
    EXPECT_EQ(Bench.Files.Read("data/paintlist.txt"), "Greys\r\nInks, dark\r\n");
    EXPECT_EQ(shipped.Read("Data/paintlist.txt"), "Greys\r\n");
}

TEST_F(PaintChoice, ThePaletteFollowsTheListOfChosenSets) {
    State.SelectedPaintsList = {"Inks, dark", "Oils"};
    State.PaintShopLoaded = true;
    RestorePaintColors(Bench.Place);
    EXPECT_EQ(test::NamesOf(State), "i1 o1 o2");
    EXPECT_EQ(State.PaintColors[2], State.MasterColors[1]);

    State.SelectedPaintsList = {"None Selected"};
    LoadColors(Bench.State, Bench.State, Bench.State);
    EXPECT_EQ(State.PaintCount, 0);
    EXPECT_EQ(State.PaintColors.Count(), 0);
}

TEST_F(PaintChoice, RefusesMorePaintsThanCanBeNumbered) {
    State.MasterColors = PaintList(32767, {0, 0, 0, "Oils", "", "", 0});
    SetPalette(State, {test::Paint(1, 1, 1, "old")});
    State.SelectedPaintsList = {"Oils"};
    LoadColors(Bench.State, Bench.State, Bench.State);
    EXPECT_EQ(State.PaintCount, 32767);
    State.SelectedPaintsList = {"Oils", "Oils"};
    EXPECT_THROW(LoadColors(Bench.State, Bench.State, Bench.State), OverflowError);
    EXPECT_EQ(State.PaintCount, 32767);
}

TEST_F(PaintChoice, UntilThePaintShopWasOpenedTheModeComesFromStartUp) {
    Bench.Files.Write("templates/Sea.csv", " 1\r\n9,9,9,\"Oils\",\"\",\"t1\"\r\n");
    State.SelectedTemplate = "Sea";
    State.PaintSets[2].Selected = true;
    RestorePaintColors(Bench.Place);
    EXPECT_EQ(test::NamesOf(State), "g1");
    State.TemplateMode = true;
    RestorePaintColors(Bench.Place);
    EXPECT_EQ(test::NamesOf(State), "t1");
    State.PaintShopLoaded = true;
    State.MfgSelected = true;
    RestorePaintColors(Bench.Place);
    EXPECT_EQ(test::NamesOf(State), "g1");
}

}  // namespace
}  // namespace vendrel
