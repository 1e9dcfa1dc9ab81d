#pragma once

#include <filesystem>
#include <string>

#include "convert/photo_decoder.h"
#include "forms/file_import.h"
#include "forms/save_everything.h"
#include "plan/exporter.h"
#include "shell/menu.h"
#include "shell/workplace.h"

namespace vendrel {

/// The main window without its window: start-up, settings and the way from photo to kit. Handlers
/// throw Error and leave its telling to the window; Stop ends the program.
class MainForm {
  public:
    /// `exporter` writes what needs fonts, `decoder` reads photos that are no bitmaps; a window
    /// always has both.
    explicit MainForm(Workplace& place, const Exporter* exporter = nullptr,
                      const PhotoDecoder* decoder = nullptr)
        : place_(place),
          exporter_(exporter),
          chooser_(place, decoder),
          kits_(place, decoder, everything_.Plan()) {
        chooser_.Attach(kits_);
    }

    /// Starts the program. Throws Stop when it ran here for the first time and has said so.
    void Form_Load();

    /// What choosing a menu entry does.
    void Click(MenuId entry);
    /// The sentence for the status bar: what to do next.
    [[nodiscard]] std::string StatusHint() const;

    void LoadBMP_Click();
    void OpenKit_Click();
    void SaveKit_Click();
    void SaveKitAs_Click();
    /// The window for it has a title. Throws Error, FileError.
    void SaveKitAs_Titled(const std::string& title);
    void CropOrTurn_Click();
    void LoadStipples_Click();
    void SaveStipples_Click();
    void StartupPaintShop_Click();
    void ChangeToStipples_Click();
    void ColorPickerSelect_Click();
    void PaintItNow_Click();
    void PrintWorkform_Click();
    void SaveReference_Click();
    void PrintAll_Click();
    void PrintColorChart_Click();
    void SaveItAll_Click();
    void SaveKitPdf_Click();
    void EasySet_Click();
    void MediumSet_Click();
    void HardSet_Click();
    void Set16Colors_Click();
    void Set32Colors_Click();
    void Set40Colors_Click();
    void Set50Colors_Click();
    void RunTemplateShop_Click();
    void ShowMyPaints_Click();
    void ChoosePaintSource_Click();
    void ShowMissingPaints_Click();
    void ShowShopping_Click();
    void AddPaintCatalogue_Click();
    void NextBestColors_Click();
    void AveragePixel_Click();
    void SamplePixel_Click();
    void MatchPlain_Click();
    void MatchEye_Click();
    void UndoTouchUp_Click();
    void RedoTouchUp_Click();
    void MakeItPaintable_Click();
    void WatchItPaint_Click();
    void ShowAbout_Click();
    void EndItAll_Click();

    /// A photo or a kit was dropped on the window, or its file pasted.
    void TakePhoto(const std::filesystem::path& photo);
    /// A picture was pasted; empty when there was none.
    void PastePicture(const Surface& picture);

    /// Whether the program may end now: asks when the kit is not saved.
    [[nodiscard]] bool MayEnd();

    /// Says in the menu which step of touching up can be taken back or brought again.
    void NameTouchUps();
    /// Draws the stipples again and paints them.
    void RepaintPicture();
    /// Never acts: the window keeps what is drawn.
    void WorkFrame_Paint();

    [[nodiscard]] const Exporter& Exports() const { return *exporter_; }
    /// The photo chooser, which lives as long as the main window.
    [[nodiscard]] FileImport& Chooser() { return chooser_; }
    /// The kit in hand as a file.
    [[nodiscard]] KitDesk& Kits() { return kits_; }
    /// What Save Everything saves, kept as long.
    [[nodiscard]] SaveEverythingForm& Everything() { return everything_; }

  private:
    void ShowSample();
    void PrepareChooser();
    void SetDifficulty(Difficulty level);
    void TakeDifficulty(Difficulty level);
    void SetFinalPaints(int finalColors);
    void SetMatching(Matching match);
    void SampleMethodChanged();
    void Saved(const std::filesystem::path& file);

    Workplace& place_;
    const Exporter* exporter_;
    FileImport chooser_;
    SaveEverythingForm everything_{place_, exporter_};
    KitDesk kits_;
    bool isHardToPaint_ = false;  // the picture painted last
    std::string lastSaved_;       // for the hint, until the next step of the work
};

}  // namespace vendrel
