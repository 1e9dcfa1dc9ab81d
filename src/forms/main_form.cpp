#include "forms/main_form.h"

#include <initializer_list>

#include "cleanup/paint_pass.h"
#include "convert/bitmap_reader.h"
#include "convert/photo_import.h"
#include "convert/settings.h"
#include "convert/stipple_conversion.h"
#include "forms/kit_saving.h"
#include "output/kit_figures.h"
#include "paints/restore.h"
#include "shell/busy_pointer.h"
#include "startup/start_up.h"
#include "storage/load_stipples.h"
#include "storage/stipple_file.h"
#include "support/disk.h"
#include "support/error.h"
#include "touchup/laid_edits.h"
#include "touchup/unsaved_work.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;
using enum MenuId;

struct ClickHandler {
    MenuId Entry;
    void (MainForm::*Handler)();
};

constexpr ClickHandler kHandlers[] = {
    {LoadBMP, &MainForm::LoadBMP_Click},
    {OpenKit, &MainForm::OpenKit_Click},
    {SaveKit, &MainForm::SaveKit_Click},
    {SaveKitAs, &MainForm::SaveKitAs_Click},
    {CropOrTurn, &MainForm::CropOrTurn_Click},
    {LoadStipples, &MainForm::LoadStipples_Click},
    {SaveStipples, &MainForm::SaveStipples_Click},
    {StartupPaintShop, &MainForm::StartupPaintShop_Click},
    {ChangeToStipples, &MainForm::ChangeToStipples_Click},
    {ColorPickerSelect, &MainForm::ColorPickerSelect_Click},
    {UndoTouchUp, &MainForm::UndoTouchUp_Click},
    {RedoTouchUp, &MainForm::RedoTouchUp_Click},
    {MakeItPaintable, &MainForm::MakeItPaintable_Click},
    {PaintItNow, &MainForm::PaintItNow_Click},
    {PrintWorkform, &MainForm::PrintWorkform_Click},
    {SaveReference, &MainForm::SaveReference_Click},
    {PrintAll, &MainForm::PrintAll_Click},
    {PrintColorChart, &MainForm::PrintColorChart_Click},
    {SaveItAll, &MainForm::SaveItAll_Click},
    {SaveKitPdf, &MainForm::SaveKitPdf_Click},
    {EasySet, &MainForm::EasySet_Click},
    {MediumSet, &MainForm::MediumSet_Click},
    {HardSet, &MainForm::HardSet_Click},
    {Set16Colors, &MainForm::Set16Colors_Click},
    {Set32Colors, &MainForm::Set32Colors_Click},
    {Set40Colors, &MainForm::Set40Colors_Click},
    {Set50Colors, &MainForm::Set50Colors_Click},
    {RunTemplateShop, &MainForm::RunTemplateShop_Click},
    {ShowMyPaints, &MainForm::ShowMyPaints_Click},
    {ChoosePaintSource, &MainForm::ChoosePaintSource_Click},
    {ShowMissingPaints, &MainForm::ShowMissingPaints_Click},
    {ShowShopping, &MainForm::ShowShopping_Click},
    {AddPaintCatalogue, &MainForm::AddPaintCatalogue_Click},
    {NextBestColors, &MainForm::NextBestColors_Click},
    {AveragePixel, &MainForm::AveragePixel_Click},
    {SamplePixel, &MainForm::SamplePixel_Click},
    {MatchPlain, &MainForm::MatchPlain_Click},
    {MatchEye, &MainForm::MatchEye_Click},
    {WatchItPaint, &MainForm::WatchItPaint_Click},
    {ShowAbout, &MainForm::ShowAbout_Click},
    {EndItAll, &MainForm::EndItAll_Click},
};

// Photos may lie where nobody may write: no reason not to start.
void OfferSampleIfPossible(const Workplace& place) {
    try {
        OfferSample(place);
    } catch (const Error&) {
        return;
    }
}

}  // namespace

void MainForm::Form_Load() {
    PrepareSettings(place_);
    ShowSample();
    place_.MainMenu[LoadBMP].Enabled = true;
    place_.MainMenu[PaintItNow].Enabled = false;
    const bool first = PrepareFolders(place_.Folder);
    OfferSampleIfPossible(place_);
    if (first) {
        place_.Screen.ShowMessage("Vendrel",
                                  "First Time Ran.. Pictures Folder Created.\n"
                                  "Program Will Exit To Allow You To Place Your .BMP Pictures "
                                  "In This Folder.\n" +
                                      FullPath(place_.Folder.Path("Pictures")).string());
        throw Stop{};
    }
    PreparePaints(place_);
}

void MainForm::ShowSample() {
    place_.State->PictureLoaded = false;
    place_.Frames->WorkFrame.Visible = false;
    place_.Frames->BackFrame.Visible = false;
    place_.Frames->CaptureFrame.Visible = true;
    if (place_.Frames->CaptureFrame.Picture.Empty()) {
        place_.Frames->CaptureFrame.Picture =
            ReadBitmap(place_.Folder.DataFile("Data/PBNLady.bmp"));
    }
}

void MainForm::Click(MenuId entry) {
    for (const ClickHandler& candidate : kHandlers) {
        if (candidate.Entry == entry) {
            lastSaved_.clear();
            place_.State->LaidOn.clear();
            (this->*candidate.Handler)();
            return;
        }
    }
}

std::string MainForm::StatusHint() const {
    const Menu& menu = place_.MainMenu;
    if (!lastSaved_.empty()) {
        return "Saved " + lastSaved_;
    }
    if (!place_.State->LaidOn.empty()) {
        return place_.State->LaidOn + ".";
    }
    if (!place_.State->PictureLoaded) {
        return "Choose a photo: Picture, Load Photo. Or drop one here.";
    }
    if (menu[PrintMenu].Enabled && isHardToPaint_ && !place_.State->PaintableKit) {
        return "Many areas are too small for a brush: Picture, Make It Paintable. Or save your "
               "kit: Picture, Save.";
    }
    if (menu[PrintMenu].Enabled) {
        return "Save your kit: Picture, Save, Prepair and Save Paint by Symbol.";
    }
    if (menu[PaintItNow].Enabled) {
        return "Paint the stipples: Picture, Paint It.";
    }
    if (menu[ColorPickerSelect].Enabled) {
        return "Too many areas to paint. Choose an easier difficulty or fewer final paints, or "
               "clean "
               "up: Picture, Touch Up.";
    }
    if (menu[LoadStipples].Enabled) {
        return "Change it to stipples, or take up the saved ones: Picture, Load Stipple Picture.";
    }
    return "Choose difficulty and final paints, then change it to stipples: Picture, "
           "Change To Stipples.";
}

void MainForm::LoadBMP_Click() {
    PrepareChooser();
    chooser_.ShowFolder(place_.Folder.Path("Pictures"));
    place_.Screen.OpenForm(FormId::FileImport);
}

void MainForm::OpenKit_Click() {
    PrepareChooser();
    chooser_.ShowKits();
    place_.Screen.OpenForm(FormId::FileImport);
}

void MainForm::PrepareChooser() {
    chooser_.Remember();
    place_.State->PictureLoaded = false;
    place_.Frames->CaptureFrame.Visible = false;
    place_.Frames->WorkFrame.Visible = false;
    chooser_.Form_Load();
    place_.MainMenu[PrintMenu].Enabled = false;
}

void MainForm::SaveKit_Click() {
    if (kits_.Save()) {
        Saved(kits_.File());
    }
}

void MainForm::SaveKitAs_Click() {
    place_.Screen.OpenForm(FormId::SaveKit);
}

void MainForm::SaveKitAs_Titled(const std::string& title) {
    if (kits_.SaveAs_Click(title)) {
        Saved(kits_.File());
    }
}

void MainForm::CropOrTurn_Click() {
    if (!place_.State->PictureLoaded) {
        place_.Screen.ShowMessage("No Photo Loaded", "Choose a photo first: Picture, Load Photo.");
        return;
    }
    chooser_.CropLoaded();
}

void MainForm::TakePhoto(const fs::path& photo) {
    lastSaved_.clear();
    chooser_.TakePhoto(photo);
}

void MainForm::PastePicture(const Surface& picture) {
    if (picture.Empty()) {
        place_.Screen.ShowMessage("Nothing To Paste", "Copy a picture or a photo's file first.");
        return;
    }
    lastSaved_.clear();
    chooser_.TakePicture(picture);
}

void MainForm::LoadStipples_Click() {
    GridReplacement replacement(place_, &kits_);
    if (replacement.Allowed()) {
        vendrel::LoadStipples_Click(place_);
        replacement.Done();
    }
}

void MainForm::SaveStipples_Click() {
    if (MayReplaceSaved(place_)) {
        vendrel::SaveStipples(place_);
        Saved(StippleFilePath(place_.Folder, place_.State, place_.State));
    }
}

void MainForm::StartupPaintShop_Click() {
    place_.Screen.OpenForm(FormId::PaintShop);
}

void MainForm::ChangeToStipples_Click() {
    if (!place_.State->PictureLoaded) {
        place_.Screen.ShowMessage("No Photo Loaded", "Choose a photo first: Picture, Load Photo.");
        return;
    }
    vendrel::ChangeToStipples_Click(place_);
    EditsWereLaidOn(place_);
}

void MainForm::ColorPickerSelect_Click() {
    place_.Screen.OpenForm(FormId::TouchUp);
}

void MainForm::UndoTouchUp_Click() {
    UndoLastTouchUp(place_);
}

void MainForm::RedoTouchUp_Click() {
    RedoLastTouchUp(place_);
}

void MainForm::NameTouchUps() {
    place_.MainMenu->NameTarget(UndoTouchUp, TouchUpToUndo(place_.State));
    place_.MainMenu->NameTarget(RedoTouchUp, TouchUpToRedo(place_.State));
}

void MainForm::PaintItNow_Click() {
    vendrel::PaintItNow_Click(place_);
    isHardToPaint_ = IsHardToPaint(MeasureKit(place_));
}

void MainForm::PrintWorkform_Click() {
    Saved(SaveFromWindow(place_, OutputId::Painting));
}

void MainForm::SaveReference_Click() {
    Saved(SaveFromWindow(place_, OutputId::Reference));
}

void MainForm::PrintColorChart_Click() {
    place_.Screen.OpenForm(FormId::ColorChart);
}

void MainForm::SaveItAll_Click() {
    place_.Screen.OpenForm(FormId::SaveEverything);
}

void MainForm::SaveKitPdf_Click() {
    place_.Screen.OpenForm(FormId::KitPdf);
}

void MainForm::PrintAll_Click() {
    Saved(SaveFromWindow(place_, OutputId::Sheet));
}

void MainForm::Saved(const fs::path& file) {
    lastSaved_ = file.lexically_normal().string();
}

void MainForm::EasySet_Click() {
    SetDifficulty(vendrel::Difficulty::Easy);
}

void MainForm::MediumSet_Click() {
    SetDifficulty(vendrel::Difficulty::Medium);
}

void MainForm::HardSet_Click() {
    SetDifficulty(vendrel::Difficulty::Difficult);
}

void MainForm::SetDifficulty(vendrel::Difficulty level) {
    place_.MainMenu[LoadBMP].Enabled = true;
    if (place_.State->Chosen.Level != level) {
        TakeDifficulty(level);
    }
}

void MainForm::TakeDifficulty(vendrel::Difficulty level) {
    WorkState& state = place_.State;
    // First, as a photo that is gone by now must leave the old difficulty as it is.
    SetStippleSize(place_, TraitsOf(level).StippleSize);
    state.StipplesShown = false;
    ResizePixelMap(state, place_.Frames->WorkFrame.Picture);
    if (!state.PictureLoaded) {
        return;
    }
    SetupMenuItems(place_.MainMenu, 2);
    RefreshPhotoImage(place_.Frames, place_.Screen);
    RestorePaintColors(place_);
    CheckSavedStipples(place_);
}

void MainForm::Set16Colors_Click() {
    SetFinalPaints(16);
}

void MainForm::Set32Colors_Click() {
    SetFinalPaints(32);
}

void MainForm::Set40Colors_Click() {
    SetFinalPaints(40);
}

void MainForm::Set50Colors_Click() {
    SetFinalPaints(50);
}

void MainForm::SetFinalPaints(int finalColors) {
    const BusyPointer busy(place_.Screen);
    place_.State->FinalColors = finalColors;
    SetColorChecks(place_.State->Chosen, finalColors);
    RefreshPhotoImage(place_.Frames, place_.Screen);
    SetupMenuItems(place_.MainMenu, 2);
    RestorePaintColors(place_);
}

void MainForm::RunTemplateShop_Click() {
    SetupMenuItems(place_.MainMenu, 2);
    place_.Screen.OpenForm(FormId::TemplateShop);
}

void MainForm::ShowMyPaints_Click() {
    place_.Screen.OpenForm(FormId::MyPaints);
}

void MainForm::ChoosePaintSource_Click() {
    place_.Screen.OpenForm(FormId::PaintSource);
}

void MainForm::ShowMissingPaints_Click() {
    place_.Screen.OpenForm(FormId::MissingPaints);
}

void MainForm::ShowShopping_Click() {
    place_.Screen.OpenForm(FormId::Shopping);
}

void MainForm::AddPaintCatalogue_Click() {
    place_.Screen.OpenForm(FormId::AddCatalogue);
}

void MainForm::NextBestColors_Click() {
    // The entry stays on once a grid was made; touching up is on only while the shown photo has
    // one.
    if (!place_.MainMenu[ColorPickerSelect].Enabled) {
        place_.Screen.ShowMessage("No Stipples Made",
                                  "Change the photo to stipples first: Picture, "
                                  "Change To Stipples.");
        return;
    }
    place_.Screen.OpenForm(FormId::ColorMatcher);
}

void MainForm::AveragePixel_Click() {
    Sampling& sample = place_.State->Chosen.Sample;
    sample = sample == Sampling::Average ? Sampling::Pixel : Sampling::Average;
    SampleMethodChanged();
}

// No mirror image of averaging: sampling is switched on by unchecking averaging alone.
void MainForm::SamplePixel_Click() {
    SampleMethodChanged();
}

void MainForm::SampleMethodChanged() {
    if (place_.State->PictureLoaded) {
        RefreshPhotoImage(place_.Frames, place_.Screen);
    }
    SetupMenuItems(place_.MainMenu, 2);
}

void MainForm::MatchPlain_Click() {
    SetMatching(Matching::Plain);
}

void MainForm::MatchEye_Click() {
    SetMatching(Matching::ByEye);
}

// The palette in hand was reduced for the other way.
void MainForm::SetMatching(Matching match) {
    if (place_.State->Chosen.Match != match) {
        place_.State->Chosen.Match = match;
        SampleMethodChanged();
        RestorePaintColors(place_);
    }
}

void MainForm::MakeItPaintable_Click() {
    place_.Screen.OpenForm(FormId::MakePaintable);
}

void MainForm::WatchItPaint_Click() {
    place_.State->Chosen.WatchItPaint = !place_.State->Chosen.WatchItPaint;
}

void MainForm::ShowAbout_Click() {
    place_.Screen.OpenForm(FormId::About);
}

bool MainForm::MayEnd() {
    return MayReplaceGrid(place_, &kits_);
}

void MainForm::EndItAll_Click() {
    if (!MayEnd()) {
        return;
    }
    place_.Screen.SetCaption("Unloading...");
    throw Stop{};
}

void MainForm::RepaintPicture() {
    DrawStipplePicture(place_);
    PaintAllCells(place_);
}

void MainForm::WorkFrame_Paint() {
    if (place_.State->PictureLoaded && place_.State->StipplesShown) {
        place_.Screen.RefreshWorkFrame();
    }
}

}  // namespace vendrel
