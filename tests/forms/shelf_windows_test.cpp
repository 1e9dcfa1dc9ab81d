#include <gmock/gmock.h>

#include "forms/add_catalogue.h"
#include "forms/missing_paints.h"
#include "forms/my_paints.h"
#include "forms/paint_source.h"
#include "forms/shopping.h"
#include "forms/small_photo.h"
#include "paints/restore.h"
#include "plan/blank_exporter.h"
#include "shelf/shelf_file.h"
#include "support/error.h"
#include "touchup/laid_edits.h"

namespace vendrel {
namespace {

using testing::ElementsAre;

std::vector<std::string> NamesOf(const MyPaints& form) {
    std::vector<std::string> names;
    for (const MyPaintsRow& row : form.Rows()) {
        names.push_back(row.Paint.PaintName);
    }
    return names;
}

int RowNamed(const MyPaints& form, const std::string& name) {
    const auto names = NamesOf(form);
    return static_cast<int>(std::ranges::find(names, name) - names.begin());
}

struct Shelved : test::SmallPhoto {
    Shelved() { Form.Form_Load(); }
    MyPaints Form{Place};
};

TEST(MyPaints, OwnsSeveralAtOnceAndWholeSetsAndTakesEachBack) {
    Shelved window;
    MyPaints& form = window.Form;
    const int all = static_cast<int>(form.Rows().size());
    form.Own_Click({0, 1}, true);
    form.Field_Change(0, ShelfField::MlLeft, "12,5");
    form.Field_Change(0, ShelfField::Label, "z9");
    const std::string set = form.Rows()[0].Paint.Mfg;
    form.OwnSet_Click(set, true);
    const auto inSet = std::ranges::find(form.Sets(), set, &MyPaintsSet::Name);
    EXPECT_EQ(inSet->Owned, inSet->Paints);
    // What was written of a paint comes back with its tick.
    form.OwnSet_Click(set, false);
    EXPECT_FALSE(form.Rows()[0].Owned);
    form.Own_Click({0}, true);
    EXPECT_EQ(form.Rows()[0].MlLeft, "12.5");
    EXPECT_EQ(form.Rows()[0].Label, "Z9");
    while (form.CanUndo()) {
        form.Undo_Click();
    }
    EXPECT_FALSE(form.Changed());
    EXPECT_EQ(static_cast<int>(form.Rows().size()), all);
}

TEST(MyPaints, RefusesWhatCannotBeReadAndKeepsWhatStood) {
    Shelved window;
    MyPaints& form = window.Form;
    form.Own_Click({0, 1}, true);
    form.Field_Change(0, ShelfField::Label, "O1");
    const Shelf before = form.Owned();
    const std::pair<ShelfField, const char*> refused[] = {
        {ShelfField::MlLeft, "much"},
        {ShelfField::MlLeft, "-1"},
        {ShelfField::Pots, "1.5"},
        {ShelfField::Label, "01"},  // looks like O1
        {ShelfField::Label, "ABCD"}};
    for (const auto& [field, text] : refused) {
        EXPECT_THROW(form.Field_Change(1, field, text), Error) << text;
    }
    EXPECT_THROW(form.Field_Change(2, ShelfField::Note, "not owned"), Error);
    EXPECT_THROW(form.AddOwn_Click({1, 2, 3, "Mine", "", " ", 0}), Error);
    EXPECT_EQ(form.Owned(), before);
}

TEST(MyPaints, FindsByWordsAndByEyeAndOwnPaintsToo) {
    Shelved window;
    MyPaints& form = window.Form;
    form.AddOwn_Click({250, 10, 5, "Mine", "PR1", "Garage Lacquer", 0});
    form.Search_Change({.Text = "lacquer pr1"});
    EXPECT_THAT(NamesOf(form), ElementsAre("Garage Lacquer"));
    EXPECT_EQ(form.Rows()[0].Standing, "Your own");
    form.Search_Change({.Near = Rgb(250, 10, 5)});
    EXPECT_EQ(form.Rows()[0].Paint.PaintName, "Garage Lacquer");
    form.Search_Change({.Order = PaintOrderBy::Name});
    EXPECT_TRUE(std::ranges::is_sorted(NamesOf(form)));
    form.Search_Change({.OwnedOnly = true});
    EXPECT_EQ(form.Rows().size(), 1U);
}

TEST(MyPaints, SavesBesideWhatAnotherProgramSaved) {
    Shelved window;
    window.Form.Own_Click({RowNamed(window.Form, "Red")}, true);
    ChangeShelf(window.Place.Folder,
                [&](Shelf& shelf) { AddToShelf(shelf, window.State.MasterColors[2]); });
    window.Form.Done_Click();
    EXPECT_EQ(ReadShelf(window.Place.Folder).Paints.size(), 2U);
}

TEST(MyPaints, TakesOfAListOnlyWhatWasConfirmed) {
    Shelved window;
    window.Files.Write("list.txt", "Red\nGren\nno such paint at all\n");
    window.Form.ReadList_Click(window.Files / "list.txt");
    ASSERT_EQ(window.Form.Proposals().size(), 3U);
    EXPECT_FALSE(window.Form.Changed());
    window.Form.TakeList_Click({window.Form.Proposals()[0].Paints.front(), 0, 0});
    ASSERT_EQ(window.Form.Owned().Paints.size(), 1U);
    EXPECT_EQ(window.Form.Owned().Paints[0].Name, "Red");
}

TEST(PaintSource, WhatIsOwnedReachesTheKitAsATemplateAndSetsComeBack) {
    test::SmallPhoto photo;
    photo.Convert();
    PaintSourceForm form(photo.Place);
    form.Form_Load();
    PaintSourceWish wish = form.Wish();
    const PaintSourceWish sets = wish;
    wish.From = PaintsFrom::Owned;
    form.Choose(wish);
    EXPECT_FALSE(form.Figures());
    EXPECT_THROW(form.AcceptButton_Click(), Error);  // nothing is owned
    ChangeShelf(photo.Place.Folder, [&](Shelf& shelf) {
        AddToShelf(shelf, {120, 80, 30, "Mine", "", "Mud", 0});
    });
    form.ReadOwned();  // from the window over it
    EXPECT_EQ(form.Wish(), wish);
    EXPECT_EQ(form.Figures()->ToBuy, 0);
    EXPECT_EQ(photo.State.PaintCount, 2);  // figures change nothing
    form.AcceptButton_Click();
    ASSERT_EQ(photo.State.PaintCount, 1);
    EXPECT_EQ(photo.State.PaintColors[1].PaintName, "Mud");
    EXPECT_EQ(PaintSourceText(photo.State), "What I own");
    form.Form_Load();
    EXPECT_EQ(form.Wish().From, PaintsFrom::Owned);
    form.Choose({.From = PaintsFrom::Sets, .Buying = {true, 0, 1}});
    EXPECT_LE(form.Figures()->ToBuy, 1);
    form.Choose(sets);
    form.AcceptButton_Click();
    EXPECT_EQ(photo.State.PaintCount, 2);
}

struct Fonts : test::BlankExporter {
    void Write(OutputId, PlannedKit&, const Target&) const override {}
};

TEST(MissingPaints, AnExchangeStaysOverTheNextConversionAndGoesByUndo) {
    const Fonts fonts;
    test::SmallPhoto photo;
    photo.Convert();
    ChangeShelf(photo.Place.Folder, [&](Shelf& shelf) {
        AddToShelf(shelf, {120, 80, 30, "Mine", "", "Mud", 0});
    });
    MissingPaintsForm form(photo.Place, fonts, {});
    form.Form_Load();
    const std::size_t missing = form.Missing().size();
    ASSERT_GT(missing, 0U);
    EXPECT_GT(form.Missing()[0].Item.BuyMl, 0);
    ASSERT_EQ(form.Missing()[0].Nearest.size(), 1U);
    const std::string before = form.Missing()[0].Item.Paint.PaintName;
    const auto has = [&](const std::string& name) {
        return std::ranges::any_of(photo.State.PaintColors, [&](const PaintColor& paint) {
            return paint.PaintName == name;
        });
    };
    form.Use_Click(0);
    EXPECT_EQ(form.Missing().size(), missing - 1);
    EXPECT_TRUE(has("Mud") && !has(before));
    RestorePaintColors(photo.Place);
    photo.Convert();
    EXPECT_TRUE(has("Mud") && !has(before));
    form.Undo_Click();
    EXPECT_TRUE(!has("Mud") && has(before));
}

// Two saved kits of one photo, the second of them at hand.
struct TwoKits : test::SmallPhoto {
    TwoKits() {
        Convert();
        ChangeShelf(Place.Folder, [this](Shelf& shelf) {
            AddToShelf(shelf, State.PaintColors[1]).MlLeft = 5;
            AddToShelf(shelf, State.PaintColors[2]);
        });
        for (const char* title : {"one", "two"}) {
            EXPECT_TRUE(Desk.SaveAs_Click(title));
        }
        Form.Form_Load();
    }
    struct OnCanvas : PlanChoice {
        OnCanvas() { Restore({.CanvasCm = 40}); }
    } Print;
    KitDesk Desk{Place, nullptr, Print};
    const Fonts Drawn;
    ShoppingForm Form{Place, Drawn, Desk, Print.Settings()};
};

TEST(Shopping, AddsKitsUpAndNamesThoseThatCannotBeRead) {
    TwoKits kits;
    ShoppingForm& form = kits.Form;
    ASSERT_EQ(form.Rows().size(), 1U);  // of the other nobody knows how much is left
    const double one = form.Rows()[0].NeededMl;
    form.AddKits_Click(
        {kits.Files / "Kits/one.kit", kits.Files / "Kits/gone.kit", kits.Files / "Kits/two.kit"});
    ASSERT_EQ(form.Kits().size(), 2U);
    EXPECT_EQ(kits.Screen.Messages.size(), 1U);
    EXPECT_EQ(form.Told(), "two is in the list already.");
    EXPECT_NEAR(form.Rows()[0].NeededMl, 2 * one, 1e-9);
    EXPECT_EQ(form.Rows()[0].Label, "A");
    form.ShowAll_Click(true);
    EXPECT_EQ(form.Rows().size(), 2U);
    form.Pot_Change(20);
    EXPECT_GT(form.Rows()[0].Pots, 1);
    EXPECT_THAT(form.Summary(), testing::EndsWith("Of 1 more you have enough."));
    form.SaveTable_Click(kits.Files / "list.csv");
    EXPECT_THAT(kits.Files.Read("list.csv"), testing::HasSubstr(",two; one\r\n"));
    form.RemoveKits_Click({0, 1});
    EXPECT_THROW(form.SaveTable_Click(kits.Files / "none.csv"), Error);
}

TEST(Shopping, APaintedKitTakesWhatItUsedAndAsksForNothingMore) {
    TwoKits kits;
    ShoppingForm& form = kits.Form;
    const Shelf before = ReadShelf(kits.Place.Folder);
    form.AddKits_Click({kits.Files / "Kits/one.kit"});
    form.Painted_Click(1);
    EXPECT_EQ(ReadShelf(kits.Place.Folder).Paints[0].MlLeft, 0);
    EXPECT_TRUE(form.Kits()[1].Painted && !form.Kits()[1].Counts);
    EXPECT_EQ(form.Rows()[0].In.size(), 1U);
    EXPECT_EQ(form.Told(), "one: 5.0 ml taken off 1 paint of yours.");
    form.Count_Click(0, false);
    EXPECT_TRUE(form.Rows().empty());
    form.Form_Load();  // what was painted is known from the shelf
    form.AddKits_Click({kits.Files / "Kits/one.kit"});
    EXPECT_FALSE(form.Kits()[1].Counts);
    form.UndoPainted_Click(1);
    EXPECT_EQ(ReadShelf(kits.Place.Folder), before);
    EXPECT_EQ(form.Rows()[0].In.size(), 2U);
    EXPECT_THROW(form.UndoPainted_Click(1), Error);
}

TEST(AddCatalogue, TakesWhatCanBeReadAndNamesTheRest) {
    test::SmallPhoto photo;
    photo.Files.Write("Shop 7.csv",
                      "No.;Farbe;L;a;b\n1;Sky;60,5;-3;-30\n2;Fog;gray;0;0\n"
                      ";;50;0;0\n3;Ink;20;5;-10\n");
    AddCatalogueForm form(photo.Place);
    form.File_Chosen(photo.Files / "Shop 7.csv");
    EXPECT_EQ(form.ColumnNames()[1], "2  Farbe  (Sky)");
    CatalogueColumns columns = form.Columns();  // Lab, and the names are in no language it knows
    columns.Name = 1;
    form.Columns_Change(columns);
    form.Set_Change("Shop");
    EXPECT_EQ(form.Summary(), "2 paints in 1 set, 2 lines left out.");
    EXPECT_THAT(form.Faults()[0], testing::StartsWith("Line 3"));
    columns.Lab = {};
    form.Columns_Change(columns);
    EXPECT_TRUE(form.Paints().Empty());
    EXPECT_THROW(form.AcceptButton_Click(), Error);
    columns.Lab = {2, 3, 4};
    form.Columns_Change(columns);
    const std::vector<PaintSet> sets(photo.State.PaintSets.begin(), photo.State.PaintSets.end());
    form.AcceptButton_Click();
    EXPECT_EQ(photo.State.MasterColors[6].PaintName, "Ink");
    EXPECT_EQ(photo.State.PaintSets[4].Name, "Shop");
    for (int set = 1; set <= 3; ++set) {
        EXPECT_EQ(photo.State.PaintSets[set].Selected,
                  sets[static_cast<std::size_t>(set) - 1].Selected);
    }
    EXPECT_THROW(form.AcceptButton_Click(), FileError);  // it is there
    EXPECT_THROW(form.File_Chosen(photo.Files.Write("none.csv", "\n")), FormatError);
}

}  // namespace
}  // namespace vendrel
