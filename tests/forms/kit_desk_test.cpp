#include "forms/kit_desk.h"

#include <gmock/gmock.h>

#include "forms/main_form.h"
#include "forms/studio.h"
#include "forms/touch_up_form.h"
#include "kitset/kit_mark.h"
#include "support/error.h"

namespace vendrel::test {
namespace {

namespace fs = std::filesystem;
using enum MenuId;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class KitDeskTest : public ::testing::Test {
  protected:
    KitDeskTest() { form_.Form_Load(); }
    void LoadPhoto() {
        form_.Click(LoadBMP);
        ClickPhoto(form_.Chooser(), "four.bmp");
        form_.Chooser().OKButton_Click();
    }
    void MakeKit() {
        LoadPhoto();
        form_.Click(MediumSet);
        form_.Click(ChangeToStipples);
    }
    [[nodiscard]] fs::path Photo() const { return studio_.Files / "Pictures/four.bmp"; }
    [[nodiscard]] fs::path Kit(const std::string& title) const {
        return studio_.Files / ("Kits/" + title + ".kit");
    }
    [[nodiscard]] std::string Mark() const {
        return KitMark(studio_.State, studio_.State, studio_.State);
    }
    /// As the editor leaves it: one stipple of another paint.
    void TouchUp() {
        studio_.State.Stipples(1, 1).ColorIndex = 3 - studio_.State.Stipples(1, 1).ColorIndex;
        studio_.State.HasUnsavedWork = true;
    }

    Studio studio_;
    MainForm form_{studio_.Place};
    KitDesk& desk_ = form_.Kits();
};

TEST_F(KitDeskTest, GivesTheSavedKitBackAndKnowsWhatChangedSince) {
    MakeKit();
    EXPECT_FALSE(desk_.Unsaved());  // soon made again
    form_.Click(SaveKit);
    EXPECT_THAT(form_.StatusHint(), HasSubstr("four.kit"));
    TouchUp();
    EXPECT_TRUE(desk_.Unsaved());
    const std::string touchedUp = Mark();
    form_.Click(SaveKit);
    EXPECT_FALSE(desk_.Unsaved());
    EXPECT_THAT(studio_.Screen.Questions, IsEmpty());
    for (const MenuId setting : {SamplePixel, WatchItPaint, MatchEye, EasySet}) {
        form_.Click(setting);
        EXPECT_EQ(desk_.Unsaved(), setting == MatchEye || setting == EasySet);
    }

    form_.TakePhoto(Kit("four"));  // as when it is dropped on the window
    EXPECT_THAT(studio_.Screen.Questions, SizeIs(1));
    EXPECT_FALSE(desk_.Unsaved());
    EXPECT_EQ(Mark(), touchedUp);
    EXPECT_TRUE(IsChecked(studio_.State.Chosen, MediumSet));
    for (const MenuId entry : {PaintItNow, SaveKit, TemplateMenu, StartupPaintShop}) {
        EXPECT_TRUE(studio_.MainMenu[entry].Enabled) << studio_.MainMenu[entry].Name;
    }
    form_.Click(PaintItNow);
    EXPECT_FALSE(desk_.Unsaved());
    LoadPhoto();
    EXPECT_EQ(desk_.File(), "");
}

TEST_F(KitDeskTest, AsksBeforeAnUnsavedKitGoes) {
    using enum SaveAnswer;
    MakeKit();
    form_.Click(SaveKit);
    const std::string before = studio_.Files.Read("Kits/four.kit");
    struct Row {
        SaveAnswer Answer;
        bool Ends;
        bool Saves;
    };
    for (const auto& [answer, ends, saves] :
         {Row{Cancel, false, false}, {Discard, true, false}, {Save, true, true}}) {
        TouchUp();
        studio_.Screen.SaveAnswers = {answer};
        EXPECT_EQ(form_.MayEnd(), ends);
        EXPECT_THAT(studio_.Screen.SaveAnswers, IsEmpty());
        EXPECT_EQ(studio_.Files.Read("Kits/four.kit") != before, saves);
    }
    EXPECT_THAT(studio_.Screen.Questions, Contains(std::pair<std::string, std::string>(
                                              "Unsaved Kit",
                                              "The kit four is not saved. Save it before going "
                                              "on?")));
    // A setting that waits for its stipples is saved with them.
    form_.Click(EasySet);
    studio_.Screen.SaveAnswers = {Save};
    LoadPhoto();
    EXPECT_EQ(ReadKitFile(Kit("four")).Stipples.Across(), 192 / 8);
}

TEST_F(KitDeskTest, SavesUnderATitleAndNeverOverAnotherKitUnasked) {
    MakeKit();
    studio_.Files.Write("Kits/four.kit", "somebody else's");
    studio_.Screen.Answers = {false};
    form_.Click(SaveKit);
    EXPECT_EQ(studio_.Files.Read("Kits/four.kit"), "somebody else's");
    EXPECT_THROW(desk_.SaveAs_Click("a/b"), Error);
    studio_.Screen.Answers = {false};
    desk_.SaveAs_Click("four");
    EXPECT_EQ(studio_.Files.Read("Kits/four.kit"), "somebody else's");
    form_.Click(SaveKitAs);
    EXPECT_THAT(studio_.Screen.OpenForms, Contains(FormId::SaveKit));
    form_.SaveKitAs_Titled("For Ann");
    EXPECT_THAT(form_.StatusHint(), HasSubstr("For Ann.kit"));
    EXPECT_THAT(studio_.Screen.OpenForms, IsEmpty());
    EXPECT_EQ(ReadKitFile(Kit("For Ann")).Title, "For Ann");
    EXPECT_EQ(studio_.State.PictureName, "For Ann");
    EXPECT_EQ(desk_.Recent().front(), Kit("For Ann"));
    EXPECT_THAT(studio_.Screen.Questions, SizeIs(2));
    form_.Click(SaveKit);
    EXPECT_THAT(studio_.Screen.Questions, SizeIs(2));
}

TEST_F(KitDeskTest, AsksForAPhotoThatMovedOrChanged) {
    MakeKit();
    form_.Click(SaveKit);
    const std::string mark = Mark();
    fs::rename(Photo(), studio_.Files / "moved.bmp");
    WriteBitmap(Photo(), FourQuarters(64, 50));
    LoadPhoto();
    desk_.Open(Kit("four"));
    EXPECT_THAT(studio_.Screen.OpenForms, Contains(FormId::KitPhoto));
    EXPECT_THAT(desk_.PhotoProblem(), HasSubstr("another one by now"));
    EXPECT_THROW(desk_.Photo_Chosen(Photo()), FileError);
    EXPECT_THAT(studio_.Screen.OpenForms, Contains(FormId::KitPhoto));
    EXPECT_EQ(desk_.File(), "");
    desk_.Photo_Chosen(studio_.Files / "moved.bmp");
    EXPECT_THAT(studio_.Screen.OpenForms, IsEmpty());
    EXPECT_EQ(Mark(), mark);
    EXPECT_EQ(studio_.State.PictureFile, "moved.bmp");
    form_.Click(SaveKit);
    EXPECT_EQ(ReadKitFile(Kit("four")).Photo.File, "moved.bmp");
}

TEST_F(KitDeskTest, IsSavedFromTheEditorWithTheEditsOfTheSession) {
    MakeKit();
    form_.Click(SaveKit);
    TouchUpForm editor(studio_.Place, &desk_);
    editor.Form_Load();
    const int other = 3 - studio_.State.Stipples(2, 2).ColorIndex;
    editor.PaintList_Click(other);
    editor.PointerDown({2, 2});
    editor.PointerUp();
    studio_.Screen.SaveAnswers = {SaveAnswer::Save};
    editor.Cancel_Click();  // what was saved goes into the kit
    EXPECT_FALSE(editor.Open());
    EXPECT_FALSE(fs::exists(studio_.Files / "Saved Stipples"));
    EXPECT_THAT(studio_.Screen.Questions, SizeIs(1));
    EXPECT_FALSE(desk_.Unsaved());
    const KitFile kit = ReadKitFile(Kit("four"));
    EXPECT_EQ(kit.Stipples(2, 2).ColorIndex, other);
    EXPECT_NE(kit.Layer.Base(2, 2).ColorIndex, other);
    ASSERT_THAT(kit.Layer.Edits.Cells, SizeIs(1));
    EXPECT_EQ(kit.Layer.Edits.Cells[0].At, (CellPos{2, 2}));
}

TEST_F(KitDeskTest, IsListedAndOpenedInTheChooser) {
    MakeKit();
    form_.Click(SaveKit);
    studio_.Files.Write("Kits/torn.kit", "{");
    form_.Click(PaintItNow);
    const Surface painting = studio_.Frames.WorkFrame.Picture;
    LoadPhoto();
    form_.Click(OpenKit);
    ClickPhoto(form_.Chooser(), "torn.kit");
    EXPECT_THAT(form_.Chooser().Fit().Controls().Description, HasSubstr("no JSON"));
    EXPECT_THROW(form_.Chooser().OKButton_Click(), FormatError);
    EXPECT_EQ(studio_.State.PictureFile, "four.bmp");
    EXPECT_TRUE(studio_.State.PictureLoaded);
    form_.Click(OpenKit);
    ClickPhoto(form_.Chooser(), "four.kit");
    EXPECT_THAT(form_.Chooser().Fit().Controls().Description, HasSubstr("Medium, 32 x 24"));
    form_.Chooser().OKButton_Click();
    EXPECT_EQ(desk_.File(), Kit("four"));
    form_.Click(PaintItNow);
    EXPECT_EQ(studio_.Frames.WorkFrame.Picture, painting);
}

}  // namespace
}  // namespace vendrel::test
