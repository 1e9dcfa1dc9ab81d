#include "forms/paint_shop.h"

#include <gmock/gmock.h>

#include <string>
#include <tuple>

#include "forms/studio.h"
#include "paints/paints.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "startup/start_up.h"
#include "support/error.h"

namespace vendrel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;

class PaintShopTest : public ::testing::Test {
  protected:
    PaintShopTest() {
        PrepareSettings(studio_.Place);
        PreparePaints(studio_.Place);
    }
    void WriteTemplateOf(const std::string& name, int paints) {
        std::string text = " " + std::to_string(paints) + "\r\n";
        for (int i = 1; i <= paints; ++i) {
            text +=
                std::to_string(i) + ",2,3,\"Mine\",\"M" + std::to_string(i) + "\",\"Paint\"\r\n";
        }
        studio_.Files.Write("templates/" + name + ".csv", text);
    }
    [[nodiscard]] std::string Palette() const { return NamesOf(studio_.State); }

    Studio studio_;
    PaintShop shop_{studio_.Place};
};

TEST_F(PaintShopTest, OpensWithTheSelectedSetsAndTheirPaints) {
    shop_.Form_Load();
    const PaintShopControls& shown = shop_.Controls();
    EXPECT_THAT(shown.MfgList, ElementsAre("Reds", "Greens", "Rest"));
    EXPECT_THAT(shown.SelectedPaintsList, ElementsAre("Reds"));
    EXPECT_THAT(shown.TemplateList, ElementsAre("No Templates"));
    EXPECT_EQ(shown.PaletteCaption, "Vendrel Selected Paints [2]");
    EXPECT_EQ(shown.Swatches.Size, 17);
    EXPECT_EQ(studio_.State.SwatchSize, 17);
    EXPECT_EQ(Palette(), "Red Dark Red");
    EXPECT_EQ(shop_.PaintAt(1)->PaintName, "Dark Red");
    EXPECT_EQ(shop_.PaintAt(2), nullptr);
    EXPECT_FALSE(shown.TransferEnabled) << "nothing is clicked yet";
}

TEST_F(PaintShopTest, TransferAddsAndRemovesSetsAndRewritesTheFile) {
    const auto clickSet = &PaintShop::MfgList_Click;
    const auto clickSelected = &PaintShop::SelectedPaintsList_Click;
    shop_.Form_Load();
    for (const auto& [click, entry, file, paints] :
         {std::tuple{clickSet, 2, "Reds\r\nRest\r\n", "Red Dark Red Blue White"},
          {clickSet, 1, "Reds\r\nGreens\r\nRest\r\n", "Red Dark Red Green Blue White"},
          {clickSet, 1, "Reds\r\nGreens\r\nRest\r\n", "Red Dark Red Green Blue White"},
          {clickSelected, 0, "Greens\r\nRest\r\n", "Green Blue White"},
          {clickSelected, 1, "Greens\r\n", "Green"}}) {
        (shop_.*click)(entry);
        EXPECT_EQ(shop_.Controls().TransferCaption, click == clickSet ? ">>" : "<<");
        studio_.Files.Write("Data/paintlist.txt", "stale");
        shop_.Transfer_Click();
        EXPECT_EQ(studio_.Files.Read("Data/paintlist.txt"), file);
        EXPECT_EQ(Palette(), paints);
    }
    shop_.SelectedPaintsList_Click(0);
    shop_.Transfer_Click();
    EXPECT_THAT(studio_.Screen.Messages,
                ElementsAre(Pair("Unable to Remove", "Cannot Remove Last Paint Set")));
    EXPECT_EQ(studio_.Files.Read("Data/paintlist.txt"), "Greens\r\n");
    EXPECT_EQ(studio_.Screen.LastPointer, Pointer::Normal);
}

TEST_F(PaintShopTest, WithoutASelectedSetTheListSaysSoAndOneCanBeAdded) {
    studio_.State.PaintSets[1].Selected = false;
    shop_.Form_Load();
    EXPECT_THAT(shop_.Controls().SelectedPaintsList, ElementsAre("None Selected"));
    shop_.SelectedPaintsList_Click(0);
    EXPECT_FALSE(shop_.Controls().TransferEnabled);
    shop_.MfgList_Click(1);
    shop_.Transfer_Click();
    EXPECT_EQ(Palette(), "Green");
}

TEST_F(PaintShopTest, ATemplateLowersTheFinalPaintsUntilSetsAreChosenAgain) {
    WriteTemplateOf("Empty", 0);
    WriteTemplateOf("Twelve", 12);
    studio_.State.FinalColors = 32;
    SetColorChecks(studio_.State.Chosen, 32);
    shop_.Form_Load();
    shop_.UseTemplate_Click();
    EXPECT_TRUE(studio_.State.TemplateMode);
    EXPECT_FALSE(shop_.Controls().AllDoneEnabled);
    EXPECT_EQ(shop_.Controls().PaletteCaption, "Vendrel Template Paints [0]");

    shop_.TemplateList_Click(1);
    EXPECT_EQ(studio_.State.SelectedTemplate, "Twelve");
    EXPECT_EQ(shop_.Controls().PaletteCaption, "Vendrel Template Paints [12]");
    EXPECT_EQ(studio_.State.FinalColors, 12);
    EXPECT_TRUE(shop_.Controls().AllDoneEnabled);

    shop_.TemplateList_Click(0);
    EXPECT_THAT(
        studio_.Screen.Messages,
        ElementsAre(Pair("Unable To Continue", "The Selected Template Has NO Paints Assigned!")));
    EXPECT_FALSE(shop_.Controls().AllDoneEnabled);

    shop_.MfgSelected_Click();
    EXPECT_EQ(studio_.State.FinalColors, 32);
    EXPECT_FALSE(studio_.State.TemplateMode);
    EXPECT_EQ(Palette(), "Red Dark Red");
}

TEST_F(PaintShopTest, DoneKeepsTheTemplateForTheNextTime) {
    WriteTemplateOf("Three", 3);
    shop_.Form_Load();
    shop_.UseTemplate_Click();
    shop_.TemplateList_Click(0);
    studio_.Screen.OpenForm(FormId::PaintShop);
    shop_.AllDone_Click();
    EXPECT_TRUE(studio_.State.TemplateLoaded);
    EXPECT_TRUE(studio_.MainMenu[MenuId::ChangeToStipples].Enabled);
    EXPECT_THAT(studio_.Screen.OpenForms, IsEmpty());

    PaintShop again(studio_.Place);
    again.Form_Load();
    EXPECT_EQ(again.Controls().TemplateIndex, 0);
    EXPECT_EQ(again.Controls().PaletteCaption, "Vendrel Template Paints [3]");
}

TEST_F(PaintShopTest, EscapeKeepsTheConversionAndDoneGivesItUp) {
    WriteTemplateOf("Three", 3);
    WorkState& state = studio_.State;
    state.PictureName = "four";
    PaintList kit = {{9, 9, 9, "Mine", "K", "Kit Paint"}};
    const auto convert = [&] {
        SetPalette(state, kit);
        SetGrid(state, Grid<StippleCell>(1, 1));
        state.Stipples(1, 1).ColorIndex = 1;
        state.FinalColors = 32;
        SetupMenuItems(studio_.MainMenu, 4);
        state.HasUnsavedWork = true;
        shop_.Form_Load();
        shop_.UseTemplate_Click();
        shop_.TemplateList_Click(0);
        ASSERT_EQ(state.FinalColors, 3);
    };
    convert();
    shop_.QueryUnload();
    EXPECT_THAT(studio_.Screen.Questions, IsEmpty());
    EXPECT_EQ(Palette(), "Kit Paint");
    EXPECT_EQ(state.FinalColors, 32);
    EXPECT_FALSE(state.TemplateMode);
    EXPECT_TRUE(studio_.MainMenu[MenuId::PrintMenu].Enabled);

    convert();
    studio_.Screen.OpenForm(FormId::PaintShop);
    shop_.AllDone_Click();
    EXPECT_THAT(studio_.Screen.OpenForms, IsEmpty());
    EXPECT_EQ(Palette(), "Paint Paint Paint");
    EXPECT_THAT(studio_.Screen.Questions, IsEmpty()) << "touch-ups are laid on again";
    EXPECT_TRUE(state.HasUnsavedWork);
    EXPECT_FALSE(studio_.MainMenu[MenuId::PrintMenu].Enabled);
}

TEST_F(PaintShopTest, ABrokenTemplateLeavesNothingToBeDoneWith) {
    studio_.Files.Write("templates/broken.csv", " 2\r\n1,2,3,\"a\"\r\n");
    shop_.Form_Load();
    shop_.UseTemplate_Click();
    EXPECT_THROW(shop_.TemplateList_Click(0), FormatError);
    EXPECT_FALSE(shop_.Controls().AllDoneEnabled);
    shop_.QueryUnload();
    EXPECT_FALSE(studio_.State.TemplateMode) << "closing goes back to the sets";
    EXPECT_EQ(studio_.State.PaintCount, 2);
}

TEST_F(PaintShopTest, TheLastTemplateIsProposedBesideTheSets) {
    WriteTemplateOf("A", 1);
    WriteTemplateOf("B", 1);
    studio_.State.LastTemplate = "B";
    shop_.Form_Load();
    EXPECT_EQ(shop_.Controls().TemplateIndex, 1);
    EXPECT_EQ(Palette(), "Red Dark Red");
}

}  // namespace
}  // namespace vendrel::test
