#include "forms/main_form.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <utility>

#include "forms/studio.h"
#include "plan/blank_exporter.h"
#include "storage/stipple_file.h"
#include "support/error.h"
#include "support/whole_file.h"

namespace vendrel::test {
namespace {

namespace fs = std::filesystem;
using enum MenuId;
using ::testing::_;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;

class MainFormTest : public ::testing::Test {
  protected:
    MainFormTest() { form_.Form_Load(); }
    [[nodiscard]] bool On(MenuId entry) const { return studio_.MainMenu[entry].Enabled; }
    [[nodiscard]] bool Checked(MenuId entry) const {
        return IsChecked(studio_.State.Chosen, entry);
    }
    void LoadPhoto(const char* name = "four.bmp") {
        form_.Click(LoadBMP);
        ClickPhoto(form_.Chooser(), name);
        form_.Chooser().OKButton_Click();
    }
    /// The entries that walk through the stages, "+" for on.
    [[nodiscard]] std::string Stage() const {
        std::string marks;
        for (const MenuId entry : {StartupPaintShop, TemplateMenu, ChangeToStipples, PaintItNow,
                                   ColorPickerSelect, PrintMenu}) {
            marks += On(entry) ? '+' : '-';
        }
        return marks;
    }

    Studio studio_;
    MainForm form_{studio_.Place};
};

TEST_F(MainFormTest, StartsOnTheSampleWithEasyFiftyAndAveraging) {
    EXPECT_EQ(studio_.Frames.CaptureFrame.Picture, FourQuarters(8, 8));
    EXPECT_TRUE(studio_.Frames.CaptureFrame.Visible);
    EXPECT_FALSE(studio_.Frames.WorkFrame.Visible);
    EXPECT_EQ(Stage(), "------");
    for (const MenuId off : {LoadStipples, NextBestColors, PrintAll}) {
        EXPECT_FALSE(On(off)) << studio_.MainMenu[off].Name;
    }
    for (const MenuId checked : {EasySet, Set50Colors, AveragePixel, WatchItPaint}) {
        EXPECT_TRUE(Checked(checked)) << studio_.MainMenu[checked].Name;
    }
    EXPECT_EQ(studio_.State.MasterCount, 5);
    EXPECT_EQ(studio_.State.PaintCount, 2);
    EXPECT_TRUE(fs::is_directory(studio_.Files / "Results"));
    EXPECT_THAT(form_.StatusHint(), HasSubstr("Choose a photo"));
}

TEST(FirstRun, MakesTheFoldersSaysSoAndEndsBeforeTheCatalogue) {
    Bench bench(VENDREL_SOURCE_DIR);
    MainForm form(bench.Place);
    EXPECT_THROW(form.Form_Load(), Stop);
    EXPECT_THAT(bench.Screen.Messages,
                ElementsAre(Pair("Vendrel",
                                 "First Time Ran.. Pictures Folder Created.\nProgram Will Exit To "
                                 "Allow You To Place Your .BMP Pictures In This Folder.\n" +
                                     (bench.Files / "Pictures").string())));
    for (const char* made : {"Data/paintlist.txt", "Results", "Pictures"}) {
        EXPECT_TRUE(fs::exists(bench.Files / made)) << made;
    }
    EXPECT_EQ(bench.State.MasterCount, 0);
    const fs::path sample = bench.Files / "Pictures/PBNLady.bmp";
    EXPECT_TRUE(fs::exists(sample));
    for (const char* before : {"gone", "someone's own"}) {
        fs::remove(sample);
        if (before != std::string("gone")) {
            bench.Files.Write("Pictures/PBNLady.bmp", before);
        }
        MainForm again(bench.Place);
        EXPECT_NO_THROW(again.Form_Load());
        EXPECT_EQ(fs::file_size(sample) > 1000, before == std::string("gone"));
    }
}

TEST(FirstRun, KeepsFoldersWhateverTheirSpelling) {
    Bench bench(VENDREL_SOURCE_DIR);
    bench.Files.Write("data/paintlist.txt", "Gouache\r\n");
    bench.Files.Write("PICTURES/x.bmp", "");
    MainForm form(bench.Place);
    form.Form_Load();
    EXPECT_FALSE(fs::exists(bench.Files / "Data"));
    EXPECT_FALSE(fs::exists(bench.Files / "Pictures"));
    EXPECT_EQ(bench.Files.Read("data/paintlist.txt"), "Gouache\r\n");
}

TEST_F(MainFormTest, ClicksWalkThroughTheStages) {
    LoadPhoto();
    EXPECT_EQ(Stage(), "+++---");
    for (const auto& [entry, stage, hint] : {std::tuple{ChangeToStipples, "++-++-", "Paint It"},
                                             {PaintItNow, "++--++", "Save your kit"},
                                             {PrintAll, "++--++", "PBS.BMP"},
                                             {PrintWorkform, "++--++", "Painting.BMP"},
                                             {MediumSet, "+++---", "Change To Stipples"},
                                             {ChangeToStipples, "++-++-", "Paint It"},
                                             {Set16Colors, "+++---", "Change To Stipples"},
                                             {ChangeToStipples, "++-++-", "Paint It"},
                                             {SamplePixel, "+++---", "Change To Stipples"}}) {
        form_.Click(entry);
        const auto name = studio_.MainMenu[entry].Name;
        EXPECT_EQ(Stage(), stage) << name;
        EXPECT_THAT(form_.StatusHint(), HasSubstr(hint)) << name;
        EXPECT_EQ(studio_.Screen.LastPointer, Pointer::Normal) << name;
    }
    EXPECT_TRUE(fs::exists(studio_.Files / "Results/four Easy PBS.BMP"));
    EXPECT_TRUE(fs::exists(studio_.Files / "Results/four Easy Painting.BMP"));
    EXPECT_THAT(studio_.Screen.Messages, IsEmpty());
    form_.Click(ChangeToStipples);
    studio_.MainMenu[PaintItNow].Enabled = false;  // as when they come to more areas than can be
    EXPECT_THAT(form_.StatusHint(), HasSubstr("Too many areas"));
}

// Draws nothing, but tells of its progress; fails when told to.
class Printer : public BlankExporter {
  public:
    void Write(OutputId output, PlannedKit& kit, const Target& target) const override {
        const Workplace& place = kit.Place();
        place.Screen.SetCaption("Printing");
        place.Screen.ReportProgress(1, 2);
        place.Screen.ReportProgress(0, 0);
        if (Fails) {
            throw Error("no font");
        }
        WriteWholeFile(target.File, output == OutputId::Pdf && kit.Settings().Sheet == Paper::A3
                                        ? "A3"
                                        : "chart");
    }
    bool Fails = false;
};

TEST(SaveEverything, SavesWhatIsChosenWithOneProgressAndRemembersIt) {
    Studio studio;
    Printer printer;
    MainForm main(studio.Place, &printer);
    main.Form_Load();
    main.Click(LoadBMP);
    ClickPhoto(main.Chooser(), "four.bmp");
    main.Chooser().OKButton_Click();
    main.Click(ChangeToStipples);
    main.Click(PaintItNow);
    studio.State.HasUnsavedWork = true;
    main.Click(SaveItAll);
    SaveEverythingForm& form = main.Everything();
    form.Form_Load();
    EXPECT_THAT(form.Controls().Always, ::testing::SizeIs(4));
    EXPECT_EQ(form.Controls().GridFile, "four-Easy.stp");
    printer.Fails = true;
    form.Grid_Click(true);
    form.Pdf_Click(true);
    form.Svg_Click(true);
    form.Page_Click(true);
    form.List_Click(true);
    form.Plan().Choose({.Sheet = Paper::A3});
    EXPECT_THROW(form.SaveButton_Click(), Error);
    EXPECT_THAT(studio.Screen.OpenForms, ElementsAre(FormId::SaveEverything));
    EXPECT_EQ(studio.Screen.Captions.back(), "Vendrel -four");
    EXPECT_TRUE(studio.State.HasUnsavedWork);
    EXPECT_FALSE(fs::exists(studio.Files / "Results/four Easy PBS.BMP"));
    printer.Fails = false;
    studio.Screen.Progress.clear();
    form.SaveButton_Click();
    EXPECT_THAT(studio.Screen.OpenForms, IsEmpty());
    EXPECT_EQ(studio.Files.Read("Results/four Easy Kit.pdf"), "A3");
    EXPECT_TRUE(fs::exists(studio.Files / "Results" / form.Controls().SvgFile));
    EXPECT_TRUE(fs::exists(studio.Files / "Results" / form.Controls().PageFile));
    EXPECT_TRUE(fs::exists(studio.Files / "Saved Stipples/four-Easy.stp"));
    EXPECT_FALSE(studio.State.HasUnsavedWork);
    EXPECT_EQ(studio.Screen.Progress.back(), std::pair(0, 0));
    studio.Screen.Progress.pop_back();
    EXPECT_TRUE(std::ranges::is_sorted(studio.Screen.Progress)) << "it never falls back";
    EXPECT_EQ(studio.Screen.Progress.back(), std::pair(9000, 9000));
    main.Click(SaveItAll);
    EXPECT_TRUE(main.Everything().Grid() && main.Everything().Pdf());
}

TEST_F(MainFormTest, SavesTheStipplesAndAsksBeforeOthersAreReplaced) {
    LoadPhoto();
    EXPECT_FALSE(On(SaveStipples));
    form_.Click(ChangeToStipples);
    const char* saved = "Saved Stipples/four-Easy.stp";
    studio_.Files.Write(saved, "an evening's work");
    studio_.Screen.Answers = {false};
    form_.Click(SaveStipples);
    EXPECT_EQ(studio_.Files.Read(saved), "an evening's work");
    form_.Click(SaveStipples);
    EXPECT_THAT(form_.StatusHint(), HasSubstr("four-Easy.stp"));
    EXPECT_TRUE(On(LoadStipples));
    form_.Click(SaveStipples);
    EXPECT_EQ(studio_.Screen.Questions.size(), 2U) << "the same need no question";
    form_.Click(LoadStipples);
    EXPECT_EQ(Stage(), "++-++-");
}

TEST_F(MainFormTest, ConvertingWithoutAPhotoAsksForOne) {
    form_.Click(Set32Colors);
    ASSERT_TRUE(On(ChangeToStipples));
    form_.Click(ChangeToStipples);
    EXPECT_THAT(studio_.Screen.Messages, ElementsAre(Pair(_, HasSubstr("Choose a photo"))));
    EXPECT_FALSE(studio_.State.StipplesMade);
}

TEST_F(MainFormTest, SampleMethodsAreNoMirrorImages) {
    for (const auto& [averaging, sampling, click, thenAveraging, thenSampling] :
         {std::tuple{true, false, AveragePixel, false, true},
          {false, true, AveragePixel, true, false},
          {true, false, SamplePixel, true, false},
          {false, true, SamplePixel, false, true}}) {
        studio_.State.Chosen.Sample = sampling ? Sampling::Pixel : Sampling::Average;
        ASSERT_EQ(Checked(AveragePixel), averaging);
        form_.Click(click);
        EXPECT_EQ(Checked(AveragePixel), thenAveraging);
        EXPECT_EQ(Checked(SamplePixel), thenSampling);
    }
}

TEST_F(MainFormTest, DifficultyFitsPhotoPaletteAndPixelMapToItsStipples) {
    LoadPhoto();
    for (const auto& [entry, size] :
         {std::pair(MediumSet, 6), std::pair(HardSet, 4), std::pair(EasySet, 8)}) {
        form_.Click(ChangeToStipples);
        form_.Click(entry);
        EXPECT_EQ(studio_.State.StippleSize, size);
        EXPECT_EQ(studio_.State.PictureWidth / 15 % size, 0);
        EXPECT_EQ(studio_.State.PixelMap.Across(), studio_.Frames.WorkFrame.Picture.Width());
        EXPECT_EQ(studio_.State.PaintCount, 2) << "the palette is the selection again";
        EXPECT_EQ(Checked(EasySet) + Checked(MediumSet) + Checked(HardSet), 1);
        EXPECT_TRUE(Checked(entry));
    }
    form_.Click(ChangeToStipples);
    form_.Click(EasySet);
    EXPECT_EQ(Stage(), "++-++-") << "choosing the checked difficulty keeps the grid";
    fs::remove(studio_.Files / "Pictures/four.bmp");
    EXPECT_THROW(form_.Click(HardSet), FileError);
    EXPECT_TRUE(Checked(EasySet));
    EXPECT_EQ(studio_.State.StippleSize, 8);
}

TEST_F(MainFormTest, SavedGridsAreOfferedPerPhotoAndDifficultyButNeverLoadedUnasked) {
    LoadPhoto();
    EXPECT_FALSE(On(LoadStipples));
    form_.Click(ChangeToStipples);
    const WorkState& state = studio_.State;
    WriteStippleFile(StippleFilePath(studio_.Program, studio_.State, studio_.State),
                     {state.PaintColors, state.Stipples, state.CellsAcross, state.CellsDown, 50});
    const Grid<StippleCell> saved = state.Stipples;
    form_.Click(MediumSet);
    EXPECT_FALSE(On(LoadStipples));
    form_.Click(EasySet);
    EXPECT_TRUE(On(LoadStipples));
    EXPECT_EQ(Stage(), "+++---");
    form_.Click(LoadStipples);
    EXPECT_EQ(Stage(), "++-++-");
    EXPECT_EQ(state.Stipples, saved);
    studio_.State.StipplesMade = false;
    LoadPhoto();
    EXPECT_TRUE(On(LoadStipples));
    EXPECT_EQ(state.PaintCount, 2)
        << "the palette of a grid from a file gives way to the selection";
}

TEST_F(MainFormTest, CancelLeavesThingsAsBeforeLoadPhoto) {
    const auto cancel = [this] {
        form_.Click(LoadBMP);
        EXPECT_THAT(studio_.Screen.OpenForms, ElementsAre(FormId::FileImport));
        EXPECT_FALSE(studio_.State.PictureLoaded);
        ClickPhoto(form_.Chooser(), "other.bmp");
        form_.Chooser().CancelButton_Click();
        EXPECT_THAT(studio_.Screen.OpenForms, IsEmpty());
    };
    WriteBitmap(studio_.Files / "Pictures/other.bmp", FourQuarters(16, 16));
    cancel();
    EXPECT_TRUE(studio_.Frames.CaptureFrame.Visible);
    EXPECT_EQ(studio_.State.PictureFile, "");
    LoadPhoto();
    form_.Click(ChangeToStipples);
    form_.Click(PaintItNow);
    cancel();
    EXPECT_TRUE(studio_.State.PictureLoaded);
    EXPECT_EQ(studio_.State.PictureFile, "four.bmp");
    EXPECT_TRUE(studio_.Frames.WorkFrame.Visible);
    EXPECT_FALSE(studio_.Frames.CaptureFrame.Visible);
    EXPECT_EQ(Stage(), "++--++");
    form_.Click(PrintAll);
    EXPECT_TRUE(fs::exists(studio_.Files / "Results/four Easy PBS.BMP"));
}

TEST_F(MainFormTest, APhotoThatCannotBeReadLeavesTheOldOne) {
    LoadPhoto();
    studio_.Files.Write("Pictures/broken.bmp", "BM, but no more");
    studio_.Files.Write("Pictures/empty.bmp", std::string("BM") + std::string(100, '\0'));
    for (const char* name : {"broken.bmp", "empty.bmp"}) {
        EXPECT_THROW(LoadPhoto(name), Error) << name;
        EXPECT_EQ(studio_.State.PictureName, "four");
        EXPECT_TRUE(studio_.State.PictureLoaded);
        EXPECT_TRUE(studio_.Frames.WorkFrame.Visible);
    }
    studio_.Files.Write("Album/broken too.bmp", "BM, but no more");
    WriteBitmap(studio_.Files / "Album/thin.bmp", Surface(3, 4000));
    for (const char* name : {"broken too.bmp", "thin.bmp"}) {
        EXPECT_THROW(form_.Chooser().TakePhoto(studio_.Files / "Album" / name), Error) << name;
        EXPECT_EQ(studio_.State.PictureName, "four");
        EXPECT_FALSE(studio_.Program.Exists("Pictures/" + std::string(name)));
    }
}

TEST_F(MainFormTest, TheChooserShowsFoldersPreviewsAndTakesPhotosFromElsewhere) {
    WriteBitmap(studio_.Files.Path() / "Album" / "my.holiday.bmp", FourQuarters(600, 300));
    form_.Click(LoadBMP);
    FileImport& chooser = form_.Chooser();
    chooser.OKButton_Click();
    EXPECT_THAT(studio_.Screen.Messages, ElementsAre(Pair("No File Selected", "Select A File!")));
    EXPECT_THAT(chooser.Controls().ImportFile, ElementsAre("four.bmp", "PBNLady.bmp"));
    chooser.ImportDir_Change(0);
    ASSERT_THAT(chooser.Controls().ImportDir,
                ElementsAre("..", "Album", "Data", "Pictures", "Results"));
    chooser.ImportDir_Change(1);
    chooser.ImportFile_Click(0);
    EXPECT_EQ(chooser.Fit().Controls().Preview.Width(), 260);
    EXPECT_EQ(chooser.Fit().Controls().Preview.Height(), 130);
    EXPECT_THAT(chooser.Fit().Controls().Description, HasSubstr("600 x 300"));
    chooser.OKButton_Click();
    EXPECT_EQ(studio_.State.PictureName, "my");
    EXPECT_EQ(studio_.State.PicturePath, (studio_.Files / "Pictures/my.holiday.bmp").string());
    EXPECT_TRUE(fs::exists(studio_.Files / "Pictures/my.holiday.bmp"));
    form_.Click(LoadBMP);
    EXPECT_EQ(chooser.Controls().FileIndex, 1) << "the photo at work is proposed";
}

TEST_F(MainFormTest, TheMatcherNeedsAGridAndExitEnds) {
    studio_.MainMenu[NextBestColors].Enabled = true;
    form_.Click(NextBestColors);
    EXPECT_EQ(studio_.Screen.Messages.size(), 1U);
    EXPECT_THAT(studio_.Screen.OpenForms, IsEmpty());
    EXPECT_THROW(form_.Click(EndItAll), Stop);
    EXPECT_EQ(studio_.Screen.Captions.back(), "Unloading...");
}

}  // namespace
}  // namespace vendrel::test
