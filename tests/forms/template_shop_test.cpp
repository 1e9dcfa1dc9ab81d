#include "forms/template_shop.h"

#include <gmock/gmock.h>

#include "forms/main_form.h"
#include "forms/small_photo.h"
#include "paints/paints.h"
#include "paints/template_file.h"
#include "shelf/shelf_file.h"
#include "support/error.h"

namespace vendrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct Shop : test::SmallPhoto {
    Shop() { Form.Form_Load(); }
    TemplateShop Form{Place};
};

TEST(TemplateShop, RefusesNamesThatCannotBeFiles) {
    Shop shop;
    shop.Form.AddTemplate_Click("Sea");
    for (const char* name :
         {"", "  ", "SEA", "a/b", "..", ".hidden", "a\\b", "a:b", "x\"y", "end.", "new\nline"}) {
        EXPECT_THROW(shop.Form.AddTemplate_Click(name), Error) << name;
    }
    EXPECT_THAT(shop.Form.Controls().TemplateList, ElementsAre("Sea"));
    EXPECT_EQ(shop.Files.Read("templates/Sea.csv"), " 0\r\n");
}

TEST(TemplateShop, KeepsPaintsInTheOrderGivenAndOnce) {
    Shop shop;
    shop.Form.AddTemplate_Click("Sea");
    EXPECT_EQ(shop.Form.AddPaints_Click({1, 2}), 2);
    EXPECT_EQ(shop.Form.AddPaints_Click({3, 2, 3}), 1);
    EXPECT_TRUE(shop.Form.MovePaints_Click({2, 3}, -1));
    EXPECT_EQ(test::NamesOf(shop.Form.Controls().Paints), "Ochre, dark Green Red");
    EXPECT_FALSE(shop.Form.MovePaints_Click({1, 3}, -1));
    EXPECT_TRUE(shop.Form.MovePaints_Click({1, 2}, 1));
    EXPECT_EQ(test::NamesOf(shop.Form.Controls().Paints), "Red Ochre, dark Green");
    shop.Form.RemovePaints_Click({1});
    EXPECT_EQ(shop.Files.Read("templates/Sea.csv"),
              " 2\r\n120,80,30,\"Warm, soft\",\"PY43\",\"Ochre, dark\"\r\n"
              "0,200,0,\"Cold\",\"PG7\",\"Green\"\r\n");
    EXPECT_EQ(shop.Form.AddSets_Click({2, 4}), 2);  // of two sets what is not there
    EXPECT_EQ(test::NamesOf(shop.Form.Controls().Paints), "Ochre, dark Green Red Night");
    shop.Form.RemovePaints_Click({2, 4});
    EXPECT_EQ(test::NamesOf(shop.Form.Controls().Paints), "Ochre, dark Red");
}

TEST(TemplateShop, MarksWhatIsOwnedAndFindsItAlone) {
    Shop shop;
    const PaintColor& green = shop.State.MasterColors[3];
    ChangeShelf(shop.Place.Folder, [&](Shelf& shelf) { AddToShelf(shelf, green); });
    shop.Form.Form_Load();
    EXPECT_EQ(shop.Form.OwnedAs(green), "A");
    EXPECT_FALSE(shop.Form.OwnedAs(shop.State.MasterColors[1]));
    shop.Form.Search_Change({.OwnedOnly = true});
    EXPECT_THAT(shop.Form.Controls().Found, ElementsAre(3));
    shop.Files.Write("Data/mypaints.csv", "name\n\"never closed");
    shop.Form.Form_Load();
    EXPECT_EQ(shop.Screen.Messages.size(), 1U);
}

TEST(TemplateShop, RenamesDuplicatesAndDeletesWhatThePaintShopUses) {
    Shop shop;
    shop.Form.AddTemplate_Click("Sea");
    shop.Form.AddPaints_Click({2});
    shop.Form.DuplicateTemplate_Click("Sky");
    EXPECT_EQ(test::NamesOf(shop.Form.Controls().Paints), "Ochre, dark");
    shop.State.SelectedTemplate = "Sky";
    shop.State.TemplateMode = true;
    shop.State.MfgSelected = false;
    shop.Form.RenameTemplate_Click("sky");  // only the case changes
    EXPECT_EQ(shop.State.SelectedTemplate, "sky");
    EXPECT_THROW(shop.Form.RenameTemplate_Click("Sea"), Error);
    shop.Screen.Answers = {false, true};
    shop.Form.DeleteTemplate_Click();
    EXPECT_EQ(shop.Form.Chosen(), "sky");
    shop.Form.DeleteTemplate_Click();
    EXPECT_THAT(shop.Form.Controls().TemplateList, ElementsAre("Sea"));
    EXPECT_TRUE(shop.State.MfgSelected);
    EXPECT_THROW(shop.Form.DeleteTemplate_Click(), Error);  // nothing is chosen now
}

TEST(TemplateShop, NeverOverwritesWhatIsNoTemplateWithoutAsking) {
    Shop shop;
    shop.Files.Write("templates/list.csv", "eggs\r\nmilk\r\n");
    shop.Files.Write("templates/notes.txt", "x");
    shop.Form.Form_Load();
    ASSERT_THAT(shop.Form.Controls().TemplateList, ElementsAre("list", "notes"));
    EXPECT_THROW(shop.Form.TemplateList_Click(1), FileError);
    EXPECT_THROW(shop.Form.TemplateList_Click(0), FormatError);
    EXPECT_EQ(shop.Form.Chosen(), "list");
    shop.Screen.Answers = {false, true};
    shop.Form.AddPaints_Click({1});
    EXPECT_EQ(shop.Files.Read("templates/list.csv"), "eggs\r\nmilk\r\n");
    shop.Form.AddPaints_Click({1});
    EXPECT_EQ(test::NamesOf(ReadTemplate(shop.Files / "templates/list.csv")), "Red");
}

TEST(TemplateShop, FindsPaintsByTextSetAndNearness) {
    Shop shop;
    shop.Form.Search_Change({"OCHRE", "", {}});
    EXPECT_THAT(shop.Form.Controls().Found, ElementsAre(2));
    shop.Form.Search_Change({"pg", "Cold", {}});
    EXPECT_THAT(shop.Form.Controls().Found, ElementsAre(3));
    shop.Form.Search_Change({"", "Warm, soft", Rgb(110, 70, 40)});
    EXPECT_THAT(shop.Form.Controls().Found, ElementsAre(2, 1));
    shop.State.MasterColors[3].PaintName = "\u00c9meraude";
    shop.Form.Search_Change({"\u00e9MER", "", {}});
    EXPECT_THAT(shop.Form.Controls().Found, ElementsAre(3));
}

TEST(TemplateShop, FillsFromThePhotoAndLeavesTheWorkAlone) {
    Shop shop;
    shop.Convert();
    const WorkState before = shop.State;
    const Surface picture = shop.Frames.WorkFrame.Picture;
    shop.Form.AddTemplate_Click("Photo");
    shop.Form.FillFromPhoto_Click();
    EXPECT_EQ(test::NamesOf(shop.Form.Controls().Paints), "Red Green");
    EXPECT_EQ(shop.State.PaintColors, before.PaintColors);
    EXPECT_EQ(shop.State.Stipples, before.Stipples);
    EXPECT_EQ(shop.State.CellMarks, before.CellMarks);
    EXPECT_EQ(shop.State.StipplesMade, before.StipplesMade);
    EXPECT_EQ(shop.State.FinalColors, before.FinalColors);
    EXPECT_EQ(shop.Frames.WorkFrame.Picture, picture);
    shop.State.PictureLoaded = false;
    EXPECT_THROW(shop.Form.FillFromPhoto_Click(), Error);
}

TEST(TemplateShop, ImportsUnderAFreeNameAndExports) {
    Shop shop;
    const auto file = shop.Files.Write("Sea.gpl", "GIMP Palette\n1 2 3 Ink\n");
    shop.Form.Import_Click(file);
    shop.Form.Import_Click(file);
    EXPECT_THAT(shop.Form.Controls().TemplateList, ElementsAre("Sea", "Sea 2"));
    EXPECT_EQ(shop.Form.Chosen(), "Sea 2");
    shop.Form.Export_Click(shop.Files / "out.gpl");
    EXPECT_THAT(shop.Files.Read("out.gpl"), HasSubstr("  1   2   3\tSea: Ink\n"));
    shop.Form.Import_Click(shop.Files.Write(
        "ours.csv", " 1\r\n7,8,9,\"Set\",\"PB29\",\"Sky\"\r\n1,2,3,\"Set\",\"\",\"Ink\"\r\n"));
    const PaintList sky = {{7, 8, 9, "Set", "PB29", "Sky", 0}};
    EXPECT_EQ(ReadTemplate(shop.Files / "templates/ours.csv"), sky);
    ASSERT_EQ(shop.Screen.Messages.size(), 1U);
    EXPECT_THAT(shop.Screen.Messages[0].second, HasSubstr("line 3 was not read"));
}

TEST(TemplateShop, CommandSetsStageTwo) {
    Shop shop;
    SetupMenuItems(shop.MainMenu, 4);
    MainForm(shop.Place).Click(MenuId::RunTemplateShop);
    EXPECT_TRUE(shop.MainMenu[MenuId::ChangeToStipples].Enabled);
    EXPECT_FALSE(shop.MainMenu[MenuId::PrintMenu].Enabled);
    EXPECT_THAT(shop.Screen.OpenForms, ElementsAre(FormId::TemplateShop));
}

}  // namespace
}  // namespace vendrel
