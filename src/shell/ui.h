#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "support/surface.h"
#include "support/twips.h"

namespace vendrel {

enum class Pointer { Normal, Busy };

/// What is to become of work that is in no file yet.
enum class SaveAnswer { Save, Discard, Cancel };

/// The windows beside the main one.
enum class FormId {
    FileImport,
    KitPhoto,
    SaveKit,
    CropPhoto,
    FitPhoto,
    PaintShop,
    TouchUp,
    ColorChart,
    KitPdf,
    SaveEverything,
    TemplateShop,
    ColorMatcher,
    MakePaintable,
    MyPaints,
    PaintSource,
    MissingPaints,
    Shopping,
    AddCatalogue,
    About
};

/// Thrown out of Ui::Yield when the program is closed in mid-work. No Error and nothing to report:
/// it unwinds to the edge and ends the program cleanly.
struct Stop {};

/// What the program asks of its surroundings: a window, a terminal or a test.
class Ui {
  public:
    Ui() = default;
    Ui(const Ui&) = delete;
    Ui& operator=(const Ui&) = delete;
    virtual ~Ui() = default;

    /// The main window's caption: the stage of the work.
    virtual void SetCaption(std::string_view caption) = 0;
    /// `done` of `total` steps of the stage named by the caption; total 0 hides the display.
    virtual void ReportProgress(int done, int total) = 0;
    virtual void SetPointer(Pointer pointer) = 0;
    virtual void ShowMessage(std::string_view title, std::string_view sentence) = 0;
    /// A yes-or-no question; true means yes.
    [[nodiscard]] virtual bool Ask(std::string_view title, std::string_view question) = 0;
    /// Asks before unsaved work goes. Where nobody can answer, nothing is lost.
    [[nodiscard]] virtual SaveAnswer AskToSave(std::string_view /*title*/,
                                               std::string_view /*question*/) {
        return SaveAnswer::Cancel;
    }
    /// Lets events happen; cheap enough to call at every brush stamp. Throws Stop.
    virtual void Yield() = 0;
    /// The work picture changed as a whole.
    virtual void RefreshWorkFrame() = 0;

    /// True while somebody watches areas light up and fill; else nothing is drawn that the next
    /// step wipes.
    [[nodiscard]] virtual bool Watched() const { return false; }
    /// `done` of `total` visible steps of the paint pass are drawn; paces the show. Throws Stop.
    virtual void ShowStep(int done, int total) = 0;

    /// Puts a picture on the clipboard; false when the clipboard refuses.
    [[nodiscard]] virtual bool PutOnClipboard(const Surface& picture) = 0;
    /// Shows a folder in the system's file manager, where there is one.
    virtual void ShowFolder(const std::filesystem::path& folder) = 0;
    virtual void OpenForm(FormId form) = 0;
    virtual void CloseForm(FormId form) = 0;
    [[nodiscard]] virtual ScreenSize Screen() const = 0;
};

}  // namespace vendrel
