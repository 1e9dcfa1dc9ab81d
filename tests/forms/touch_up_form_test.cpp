#include "forms/touch_up_form.h"

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "forms/main_form.h"
#include "forms/studio.h"
#include "storage/stipple_file.h"
#include "support/error.h"

namespace vendrel::test {
namespace {

namespace fs = std::filesystem;
using enum MenuId;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* kSaved = "Saved Stipples/four-Easy.stp";
constexpr const char* kRecovery = "Saved Stipples/four-Easy.recovery.stp";

EditTime At(int second) {
    return EditTime{} + std::chrono::seconds(second);
}

// The photo of four quarters at Easy, changed to stipples of four paints, and the editor on it.
class TouchUpFormTest : public ::testing::Test {
  protected:
    TouchUpFormTest() {
        studio_.Files.Write("Data/paintlist.txt", "Reds\r\nGreens\r\nRest\r\n");
        main_.Form_Load();
        main_.Click(LoadBMP);
        ClickPhoto(main_.Chooser(), "four.bmp");
        main_.Chooser().OKButton_Click();
        main_.Click(ChangeToStipples);
        before_ = State().Stipples;
        Open();
    }
    void Open() {
        main_.Click(ColorPickerSelect);
        form_ = std::make_unique<TouchUpForm>(studio_.Place);
        form_->Form_Load();
    }
    /// The program dies and comes back on the same photo.
    void Crash() {
        form_.reset();
        State().HasUnsavedWork = false;
        State().Recovery.reset();
        Open();
    }
    void Press(CellPos at, TouchUpTool tool = TouchUpTool::Brush) {
        form_->Tool_Click(tool);
        form_->PointerDown(at);
        form_->PointerUp();
        form_->FollowFigures();
    }
    /// One stipple of paint 4 in the red quarter: a change, and a loner.
    void MakeSpot() {
        form_->PaintList_Click(4);
        Press({3, 3});
    }
    void AcceptSpot() {
        MakeSpot();
        form_->Accept_Click();
    }
    [[nodiscard]] WorkState& State() { return studio_.State; }
    [[nodiscard]] const TouchUpControls& Shown() const { return form_->Controls(); }
    [[nodiscard]] std::vector<int> Counts() const {
        std::vector<int> counts;
        for (const TouchUpPaint& paint : Shown().Palette) {
            counts.push_back(paint.Count);
        }
        return counts;
    }
    [[nodiscard]] bool Exists(const char* file) const { return fs::exists(studio_.Files / file); }

    Studio studio_;
    MainForm main_{studio_.Place};
    std::unique_ptr<TouchUpForm> form_;
    Grid<StippleCell> before_;
};

TEST_F(TouchUpFormTest, OpensOnThePaletteWithNothingToUndoOrLoad) {
    EXPECT_THAT(studio_.Screen.OpenForms, ElementsAre(FormId::TouchUp));
    EXPECT_EQ(form_->TakeDirty(), form_->Sheet().Bounds());
    ASSERT_EQ(Shown().Palette.Count(), 4);
    EXPECT_EQ(Shown().Palette[1].Symbol, "1");
    EXPECT_EQ(Shown().Palette[1].Name, "Red");
    EXPECT_EQ(Shown().Palette[1].Label, "Reds: Red [R1]");
    EXPECT_EQ(Shown().Palette[1].Swatch, Rgb(230, 20, 20));
    EXPECT_EQ(Shown().UndoCaption, "Undo");
    EXPECT_FALSE(Shown().UndoEnabled);
    EXPECT_FALSE(Shown().LoadEnabled);
    EXPECT_EQ(Shown().Loners, "No loners");
    EXPECT_EQ(form_->Describe({2, 1}), "Column 2, row 1:  1  Reds: Red [R1]");
    EXPECT_EQ(form_->Describe({0, 1}), "");
}

TEST_F(TouchUpFormTest, ToolsRepaintWhatTheyAreMeantTo) {
    const int quarter = Counts()[0];
    ASSERT_GT(quarter, 9);
    Press({1, 1});
    EXPECT_FALSE(Shown().UndoEnabled) << "the paint was there already";
    form_->PaintList_Click(2);
    form_->BrushSize_Click(3);
    for (const auto& [tool, replaced, caption] :
         {std::tuple{TouchUpTool::Brush, 9, "Undo Brush"},
          {TouchUpTool::Fill, quarter, "Undo Fill"},
          {TouchUpTool::Replace, quarter, "Undo Replace Paint"}}) {
        Press({2, 2}, tool);
        EXPECT_EQ(Counts()[0], quarter - replaced) << caption;
        EXPECT_EQ(Shown().UndoCaption, caption);
        Press({-4, 400}, tool);
        form_->Undo_Click();
        EXPECT_EQ(Counts()[0], quarter) << caption;
    }
    EXPECT_EQ(Shown().RedoCaption, "Redo Replace Paint");
    EXPECT_EQ(State().EditStipples, before_);
    form_->PickPaint({1, 1});
    EXPECT_EQ(Shown().Brush.Paint, 1);
    form_->PickPaint({0, 0});
    EXPECT_EQ(Shown().Brush.Paint, 1) << "nothing lies there";
}

TEST_F(TouchUpFormTest, AStrokeAsksOnlyForWhatItTouchedAndCountsAsItGoes) {
    form_->PaintList_Click(2);
    (void)form_->TakeDirty();
    const int reds = Counts()[0];
    form_->PointerDown({1, 1});
    EXPECT_EQ(form_->TakeDirty(), (CellRect{1, 1, 1, 1}));
    form_->PointerTo({3, 1});
    EXPECT_EQ(form_->TakeDirty(), (CellRect{2, 1, 3, 1}));
    EXPECT_EQ(Counts()[0], reds - 3);
    form_->PointerUp();
    form_->PointerTo({3, 3});
    EXPECT_TRUE(form_->TakeDirty().Empty());
}

TEST_F(TouchUpFormTest, FindsBlinksAndCleansUpALoner) {
    EXPECT_EQ(form_->NextLoner_Click(), std::nullopt);
    EXPECT_FALSE(Shown().CleanEnabled);
    MakeSpot();
    form_->BlinkLoners_Click();
    EXPECT_THAT(form_->Marked(), ElementsAre(CellPos{3, 3}));
    EXPECT_EQ(Shown().Loners, "1 loner left");
    EXPECT_EQ(form_->NextLoner_Click(), (CellPos{3, 3}));
    EXPECT_EQ(Shown().Loners, "1 loner left; column 3, row 3");
    EXPECT_EQ(Shown().CleanPreview, "1 stipple would change, 4 areas left");
    form_->BlinkPaint_Click();
    EXPECT_THAT(form_->Marked(), SizeIs(static_cast<std::size_t>(Counts()[3])));
    form_->CleanUp_Click();
    EXPECT_EQ(State().EditStipples, before_);
    EXPECT_EQ(Shown().UndoCaption, "Undo Clean Up");
    EXPECT_EQ(Shown().CleanPreview, "0 stipples would change, 4 areas left");
    EXPECT_FALSE(Shown().CleanEnabled);
    EXPECT_EQ(Shown().Loners, "No loners");
    form_->BlinkPaint_Click();
    EXPECT_THAT(form_->Marked(), IsEmpty());
}

TEST_F(TouchUpFormTest, CleanLevelStaysFromTwoToEight) {
    form_->RaiseCleanLevel_Click();
    EXPECT_EQ(Shown().CleanLevel, 8);
    EXPECT_FALSE(Shown().RaiseEnabled);
    EXPECT_TRUE(Shown().LowerEnabled);
    for (int i = 0; i < 9; ++i) {
        form_->LowerCleanLevel_Click();
    }
    EXPECT_EQ(Shown().CleanLevel, 2);
    EXPECT_TRUE(Shown().RaiseEnabled);
    EXPECT_FALSE(Shown().LowerEnabled);
}

TEST_F(TouchUpFormTest, CancelAsksOnlyWhenThereAreChanges) {
    MakeSpot();
    studio_.Screen.SaveAnswers = {SaveAnswer::Cancel};
    form_->Cancel_Click();
    EXPECT_TRUE(form_->Open());
    EXPECT_THAT(studio_.Screen.OpenForms, ElementsAre(FormId::TouchUp));
    form_->Undo_Click();
    form_->Cancel_Click();
    EXPECT_THAT(studio_.Screen.Questions, SizeIs(1));
    EXPECT_FALSE(form_->Open());
    EXPECT_THAT(studio_.Screen.OpenForms, IsEmpty());

    Open();
    MakeSpot();
    form_->KeepRecovery(At(0));
    EXPECT_TRUE(Exists(kRecovery));
    form_->Cancel_Click();
    EXPECT_EQ(State().Stipples, before_);
    EXPECT_FALSE(Exists(kRecovery)) << "given up on purpose";
    EXPECT_FALSE(State().HasUnsavedWork);
}

TEST_F(TouchUpFormTest, AcceptTakesTheGridOverAndTidyingTellsWhichSymbolsMoved) {
    studio_.MainMenu[PaintItNow].Enabled = false;
    form_->PaintList_Click(4);
    Press({State().CellsAcross, 1}, TouchUpTool::Replace);
    EXPECT_EQ(Counts()[1], 0);
    ASSERT_TRUE(Shown().TidyEnabled);
    form_->TidyPaints_Click();
    EXPECT_FALSE(Shown().TidyEnabled);
    EXPECT_EQ(Shown().Brush.Paint, 3) << "still White";
    ASSERT_THAT(studio_.Screen.Messages, SizeIs(1));
    EXPECT_THAT(studio_.Screen.Messages[0].second, HasSubstr("left out: Green."));
    EXPECT_THAT(studio_.Screen.Messages[0].second,
                HasSubstr("Blue from 3 to 2, White from 4 to 3."));
    form_->Undo_Click();
    EXPECT_EQ(Shown().Brush.Paint, 4);
    form_->Accept_Click();
    EXPECT_EQ(State().PaintCount, 4);
    EXPECT_EQ(State().Stipples(State().CellsAcross, 1).ColorIndex, 4);
    EXPECT_THAT(studio_.Screen.Messages, SizeIs(1)) << "nothing moved";
    EXPECT_THAT(studio_.Screen.OpenForms, IsEmpty());
    EXPECT_TRUE(studio_.MainMenu[PaintItNow].Enabled);
    EXPECT_TRUE(Exists(kRecovery)) << "accepted, but not saved";
    const StippleCell& cell = State().Stipples(State().CellsAcross, 1);
    EXPECT_EQ(studio_.Frames.StippleFrame.Picture.Get(cell.X, cell.Y), Rgb(240, 240, 230));
}

TEST_F(TouchUpFormTest, ClosingSavesDiscardsOrStays) {
    using enum SaveAnswer;
    struct Case {
        SaveAnswer Answer;
        bool LoadOver;  // the change stands in undo alone
        bool Open;
        int Paint;  // of the kit
    };
    main_.Click(PaintItNow);
    form_.reset();
    for (const Case& test : {Case{Cancel, false, true, 1}, Case{Discard, false, false, 1},
                             Case{Discard, true, false, 1}, Case{Save, true, false, 4}}) {
        Open();
        if (test.LoadOver && !Exists(kSaved)) {
            form_->SaveIt_Click();
        }
        MakeSpot();
        if (test.LoadOver) {
            form_->LoadIt_Click();
        }
        EXPECT_TRUE(Shown().Unsaved);
        studio_.Screen.SaveAnswers = {test.Answer};
        form_->Cancel_Click();
        EXPECT_THAT(studio_.Screen.SaveAnswers, IsEmpty());
        EXPECT_EQ(form_->Open(), test.Open);
        EXPECT_EQ(State().Stipples(3, 3).ColorIndex, test.Paint);
        EXPECT_EQ(studio_.MainMenu[PaintItNow].Enabled, test.Paint == 4) << "to be painted anew";
        EXPECT_FALSE(State().HasUnsavedWork);
    }
    Open();
    form_->PaintList_Click(2);
    Press({3, 4});
    form_->KeepRecovery(At(0));
    fs::remove(studio_.Files / kSaved);
    fs::create_directory(studio_.Files / kSaved);
    for (int i = 0; i < 2; ++i) {
        studio_.Screen.SaveAnswers = {Save};
        EXPECT_THROW(form_->Cancel_Click(), FileError);
        EXPECT_TRUE(form_->Open() && Exists(kRecovery)) << "and asks again";
    }
}

TEST_F(TouchUpFormTest, SavesAndLoadsAsOneStep) {
    MakeSpot();
    form_->SaveIt_Click();
    EXPECT_EQ(Shown().Status, "Saved four-Easy.stp");
    EXPECT_TRUE(Shown().LoadEnabled);
    EXPECT_TRUE(studio_.MainMenu[LoadStipples].Enabled);
    form_->Undo_Click();
    (void)form_->TakeDirty();
    form_->LoadIt_Click();
    EXPECT_EQ(form_->TakeDirty(), form_->Sheet().Bounds());
    EXPECT_EQ(State().EditStipples(3, 3).ColorIndex, 4);
    EXPECT_EQ(Shown().UndoCaption, "Undo Load");
    form_->Accept_Click();
    EXPECT_FALSE(State().HasUnsavedWork) << "the file has it";
    EXPECT_FALSE(Exists(kRecovery));
}

TEST_F(TouchUpFormTest, ABrokenLoadShowsWhatItReadUntilItIsTakenBack) {
    studio_.Files.Write(kSaved, "1,1,1,50\r\n1,2,3,\"Odd\",1,\"Set\",\"R\"\r\noops\r\n");
    const CellRect whole = form_->TakeDirty();
    EXPECT_THROW(form_->LoadIt_Click(), FormatError);
    EXPECT_EQ(form_->TakeDirty(), whole);
    EXPECT_EQ(Shown().Palette[1].Swatch, Rgb(1, 2, 3));
    form_->Undo_Click();
    EXPECT_EQ(Shown().Palette[1].Swatch, Rgb(230, 20, 20));
    EXPECT_EQ(State().EditStipples, before_);
}

TEST_F(TouchUpFormTest, WorkLeftByCrashesIsListedUntilRestoredOrThrownAway) {
    for (int crash = 0; crash < 2; ++crash) {
        MakeSpot();
        form_->KeepRecovery(At(0));
        Crash();
        form_->OfferRecovery();
        EXPECT_THAT(Shown().Kept.Rows, SizeIs(static_cast<std::size_t>(crash) + 1));
        EXPECT_TRUE(Shown().Kept.Shown && Shown().Kept.RestoreEnabled);
        form_->CloseKept_Click();
    }
    studio_.Files.Write("Saved Stipples/Dog-Medium.recovery.stp", "");
    form_->KeptWork_Click();
    ASSERT_THAT(Shown().Kept.Rows, SizeIs(3));
    EXPECT_EQ(Shown().Kept.Rows[0].Photo, "Dog");
    EXPECT_EQ(Shown().Kept.Row, 1) << "the newest that fits";
    form_->KeptList_Click(0);
    EXPECT_FALSE(Shown().Kept.RestoreEnabled);
    EXPECT_THAT(Shown().Kept.Hint, HasSubstr("load the photo Dog at Medium"));
    studio_.Screen.Answers = {false};
    form_->ThrowKeptAway_Click();
    EXPECT_THAT(Shown().Kept.Rows, SizeIs(3));
    form_->ThrowKeptAway_Click();
    EXPECT_THAT(studio_.Screen.Questions.back().second, HasSubstr("Dog (Medium)"));
    EXPECT_THAT(Shown().Kept.Rows, SizeIs(2));
    form_->RestoreKept_Click();
    EXPECT_EQ(State().EditStipples(3, 3).ColorIndex, 4);
    EXPECT_FALSE(Shown().Kept.Shown);
    form_->SaveIt_Click();
    form_->KeptWork_Click();
    EXPECT_THAT(Shown().Kept.Rows, SizeIs(1));
    form_->ThrowKeptAway_Click();
    EXPECT_FALSE(Shown().Kept.Shown || Shown().KeptEnabled);
    form_->OfferRecovery();
    EXPECT_FALSE(Shown().Kept.Shown) << "there is nothing to offer";
}

TEST_F(TouchUpFormTest, ARecoveryFileThatCannotBeWrittenIsToldInTheStatus) {
    fs::remove_all(studio_.Files / "Saved Stipples");
    studio_.Files.Write("Saved Stipples", "no folder");
    MakeSpot();
    EXPECT_NO_THROW(form_->KeepRecovery(At(0)));
    EXPECT_THAT(Shown().Status, HasSubstr("No recovery file"));
}

TEST_F(TouchUpFormTest, PaintsAreSortedOfferedAddedAndPasted) {
    const auto rowsBy = [&](PaintOrder order) {
        form_->PaintOrder_Click(order);
        return Shown().Rows;
    };
    // Red, green, blue and white.
    EXPECT_THAT(rowsBy(PaintOrder::Symbol), ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(rowsBy(PaintOrder::Hue), ElementsAre(3, 1, 2, 4));
    EXPECT_THAT(rowsBy(PaintOrder::Lightness), ElementsAre(4, 2, 1, 3));
    form_->PaintList_Click(4);
    Press({3, 3}, TouchUpTool::Replace);
    EXPECT_THAT(rowsBy(PaintOrder::Use), ElementsAre(4, 2, 3, 1));
    EXPECT_THAT(Shown().ChosenPaint, HasSubstr("cm\u00b2"));
    ASSERT_THAT(form_->OfferPaints("DARK"), SizeIs(1));
    EXPECT_THAT(form_->OfferPaints("green"), IsEmpty()) << "it is there already";
    form_->AddPaint_Click(form_->OfferPaints("")[0]);
    EXPECT_EQ(Shown().Palette[5].Name, "Dark Red");
    EXPECT_EQ(Shown().Brush.Paint, 5);
    form_->SwapPaints_Click();
    EXPECT_EQ(Shown().Brush.Paint, 4);
    form_->Undo_Click();
    form_->Paste_Click("\"Vendrel stipples\",1\n1,1,1\n9,9,9,\"Other\",\"K\",\"Coal\"\n1\n",
                       {2, 2});
    EXPECT_EQ(Shown().UndoCaption, "Undo Paste");
    form_->PutDown_Click();
    EXPECT_EQ(Shown().Palette[5].Name, "Coal");
    EXPECT_EQ(form_->Sheet().PaintAt({2, 2}), 5);
    EXPECT_THAT(Shown().Steps, ElementsAre("Replace Paint", "Add Paints", "Paste"));
    form_->Step_Click(0);
    EXPECT_EQ(State().EditStipples, before_);
    EXPECT_THROW(form_->Paste_Click("words", {2, 2}), Error);
    EXPECT_TRUE(form_->Escape_Click()) << "what was pasted is still selected";
    EXPECT_FALSE(form_->Escape_Click());
}

TEST_F(TouchUpFormTest, WhateverWouldLoseAnAcceptedGridAsksFirst) {
    AcceptSpot();
    const Grid<StippleCell> accepted = State().Stipples;
    ASSERT_TRUE(State().HasUnsavedWork);
    for (const MenuId entry : {LoadStipples, EndItAll}) {
        studio_.Screen.SaveAnswers = {SaveAnswer::Cancel};
        main_.Click(entry);
        EXPECT_THAT(studio_.Screen.SaveAnswers, IsEmpty()) << studio_.MainMenu[entry].Name;
    }
    main_.Click(LoadBMP);
    ClickPhoto(main_.Chooser(), "four.bmp");
    studio_.Screen.SaveAnswers = {SaveAnswer::Cancel, SaveAnswer::Cancel};
    main_.Chooser().OKButton_Click();
    EXPECT_THAT(studio_.Screen.OpenForms, ElementsAre(FormId::FileImport));
    main_.Chooser().CancelButton_Click();
    EXPECT_FALSE(main_.MayEnd());
    EXPECT_EQ(State().Stipples, accepted);
    EXPECT_TRUE(studio_.MainMenu[PaintItNow].Enabled);
    EXPECT_TRUE(Exists(kRecovery));

    studio_.Screen.Questions.clear();
    EXPECT_TRUE(main_.MayEnd());
    EXPECT_FALSE(Exists(kRecovery)) << "given up on purpose";
    EXPECT_TRUE(main_.MayEnd());
    EXPECT_THAT(studio_.Screen.Questions, SizeIs(1)) << "there is nothing left to lose";
}

TEST_F(TouchUpFormTest, SettingsAskNothingSinceTouchUpsAreLaidOnAgain) {
    AcceptSpot();
    const std::string spot = State().PaintColors[State().Stipples(3, 3).ColorIndex].PaintName;
    for (const MenuId entry :
         {ChangeToStipples, Set16Colors, AveragePixel, SamplePixel, MatchEye, HardSet, MediumSet}) {
        main_.Click(entry);
    }
    EXPECT_TRUE(Exists(kRecovery)) << "the edits wait for the next conversion";
    main_.Click(ChangeToStipples);
    EXPECT_EQ(main_.StatusHint(), "1 edit kept.");
    EXPECT_THAT(studio_.Screen.Questions, IsEmpty());
    const StippleCell& now = State().Stipples(4, 4);  // in the middle of where the spot was
    EXPECT_EQ(State().PaintColors[now.ColorIndex].PaintName, spot);
    EXPECT_FALSE(Exists(kRecovery));
    EXPECT_TRUE(Exists("Saved Stipples/four-Medium.recovery.stp"));
    main_.Click(UndoTouchUp);
    EXPECT_TRUE(State().Edits.Empty());
    EXPECT_EQ(State().Stipples, State().Base);
    main_.Click(EasySet);
    main_.Click(RedoTouchUp);
    studio_.Screen.SaveAnswers = {SaveAnswer::Save};
    EXPECT_TRUE(main_.MayEnd()) << "changed to stipples and saved";
    EXPECT_TRUE(Exists("Kits/four.kit"));
}

TEST_F(TouchUpFormTest, AStepThatFailsAfterTheYesLosesNothingNorDoesPainting) {
    AcceptSpot();
    const Grid<StippleCell> accepted = State().Stipples;
    fs::remove(studio_.Files / "Pictures/four.bmp");
    studio_.Files.Write("Pictures/broken.bmp", "BM, but no more");
    EXPECT_THROW(main_.Click(MediumSet), Error);
    EXPECT_THROW(main_.Click(LoadStipples), Error);
    EXPECT_THROW(main_.TakePhoto(studio_.Files / "Pictures/broken.bmp"), Error);
    main_.Click(LoadBMP);
    ClickPhoto(main_.Chooser(), "broken.bmp");
    EXPECT_THROW(main_.Chooser().OKButton_Click(), Error);
    EXPECT_THAT(studio_.Screen.Questions, SizeIs(2));
    EXPECT_EQ(State().Stipples, accepted);
    main_.Chooser().CancelButton_Click();
    main_.Click(PaintItNow);
    main_.Click(PrintAll);
    EXPECT_THAT(studio_.Screen.Questions, SizeIs(2)) << "painting loses nothing";
    EXPECT_TRUE(State().HasUnsavedWork);
    EXPECT_TRUE(Exists(kRecovery));
}

}  // namespace
}  // namespace vendrel::test
