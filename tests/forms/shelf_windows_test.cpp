#include <gmock/gmock.h>

#include "forms/missing_paints.h"
#include "forms/my_paints.h"
#include "forms/paint_source.h"
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
    form.Form_Load();
    form.Choose(wish);
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

TEST(MissingPaints, AnExchangeStaysOverTheNextConversionAndGoesByUndo) {
    struct Fonts : test::BlankExporter {
        void Write(OutputId, PlannedKit&, const Target&) const override {}
    } fonts;
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

}  // namespace
}  // namespace vendrel
