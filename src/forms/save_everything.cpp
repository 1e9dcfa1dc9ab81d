#include "forms/save_everything.h"

#include <filesystem>
#include <utility>

#include "convert/picture_name.h"
#include "forms/kit_saving.h"
#include "kitset/kit_paths.h"
#include "output/result_files.h"
#include "storage/load_stipples.h"
#include "support/error.h"
#include "touchup/unsaved_work.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

std::string FolderText(const fs::path& file) {
    return file.parent_path().lexically_normal().string();
}

// Gives a photo's kit another name, and the old one back unless it was saved under the new.
class Renaming {
  public:
    Renaming(LoadedPhoto& photo, const std::string& name)
        : photo_(photo), before_(std::exchange(photo.PictureName, name)) {}
    ~Renaming() {
        if (!done_) {
            photo_.PictureName = before_;
        }
    }
    Renaming(const Renaming&) = delete;
    Renaming& operator=(const Renaming&) = delete;
    void Done() { done_ = true; }

  private:
    LoadedPhoto& photo_;
    std::string before_;
    bool done_ = false;
};

}  // namespace

void SaveEverythingForm::Form_Load() {
    name_ = place_.State->PictureName;
    ListFiles();
    std::vector<std::pair<bool*, bool>> kept;
    // Chosen for another painting; this one may not be one that can be printed.
    for (bool* const output : {&pdf_, &svg_, &page_, &list_}) {
        kept.emplace_back(output, std::exchange(*output, false));
    }
    for (const auto& [output, wanted] : kept) {
        Want(*output, wanted);
    }
}

void SaveEverythingForm::Name_Change(const std::string& name) {
    name_ = name.empty() ? std::string(PictureNameOf(place_.State->PictureFile)) : name;
    ListFiles();
}

void SaveEverythingForm::ListFiles() {
    const KitName kit{name_, std::string(DifficultyWord(place_.State))};
    const auto fileOf = [&](OutputId id) { return FileOf(OutputOf(id), place_.Folder, kit); };
    controls_ = {};
    for (const Output& output : AllOutputs()) {
        if (IsInEverything(output)) {
            controls_.Always.push_back(fileOf(output.Id).filename().string());
        }
    }
    controls_.GridFile = fileOf(OutputId::Grid).filename().string();
    controls_.PhotoName = PictureNameOf(place_.State->PictureFile);
    controls_.PdfFile = fileOf(OutputId::Pdf).filename().string();
    controls_.SvgFile = fileOf(OutputId::Svg).filename().string();
    controls_.PageFile = fileOf(OutputId::Page).filename().string();
    controls_.ListFile = fileOf(OutputId::List).filename().string();
    controls_.Folders = FolderText(fileOf(OutputId::Sheet)) + "; the stipples in " +
                        FolderText(fileOf(OutputId::Grid));
}

void SaveEverythingForm::Want(bool& output, bool wanted) {
    if (wanted && !HasPlan() && exporter_ != nullptr) {
        plan_.Measure(place_, *exporter_);
    }
    output = wanted;
}

OutputChoice SaveEverythingForm::Chosen() const {
    OutputChoice outputs(IsInEverything);
    const std::pair<OutputId, bool> wanted[] = {{OutputId::Grid, grid_},
                                                {OutputId::Pdf, pdf_},
                                                {OutputId::Svg, svg_},
                                                {OutputId::Page, page_},
                                                {OutputId::List, list_}};
    for (const auto& [output, chosen] : wanted) {
        if (chosen) {
            outputs.Add(output);
        }
    }
    return outputs;
}

void SaveEverythingForm::SaveButton_Click() {
    if (!MayNameKit(name_)) {
        throw Error("A kit cannot be named \"" + name_ +
                    "\"; choose a name without slashes, dots and control characters.");
    }
    Renaming renaming(place_.State, name_);
    if (grid_ && !MayReplaceSaved(place_)) {
        return;
    }
    const std::vector<fs::path> files =
        SaveFromWindow(place_, {.Outputs = Chosen(), .Fonts = exporter_, .Plan = plan_.Settings()});
    renaming.Done();
    place_.Screen.CloseForm(FormId::SaveEverything);
    place_.Screen.SetCaption("Vendrel -" + name_);
    CheckSavedStipples(place_);
    if (grid_) {
        KitIsSaved(place_);
    }
    std::string sentence = "Saved:\n";
    for (const fs::path& file : files) {
        sentence += "\n" + file.lexically_normal().string();
    }
    if (place_.Screen.Ask("Save Everything", sentence + "\n\nOpen the folder?")) {
        place_.Screen.ShowFolder(files.front().parent_path());
    }
}

void SaveEverythingForm::CancelButton_Click() {
    place_.Screen.CloseForm(FormId::SaveEverything);
}

}  // namespace vendrel
