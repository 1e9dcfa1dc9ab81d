#include "forms/save_everything.h"

#include <filesystem>
#include <utility>

#include "forms/kit_saving.h"
#include "kitset/kit_paths.h"
#include "touchup/unsaved_work.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

std::string FolderText(const fs::path& file) {
    return file.parent_path().lexically_normal().string();
}

}  // namespace

void SaveEverythingForm::Form_Load() {
    const KitName kit = KitNameOf(place_.State, place_.State);
    const auto fileOf = [&](OutputId id) { return FileOf(OutputOf(id), place_.Folder, kit); };
    controls_ = {};
    for (const Output& output : AllOutputs()) {
        if (IsInEverything(output)) {
            controls_.Always.push_back(fileOf(output.Id).filename().string());
        }
    }
    controls_.GridFile = fileOf(OutputId::Grid).filename().string();
    controls_.PdfFile = fileOf(OutputId::Pdf).filename().string();
    controls_.SvgFile = fileOf(OutputId::Svg).filename().string();
    controls_.PageFile = fileOf(OutputId::Page).filename().string();
    controls_.Folders = FolderText(fileOf(OutputId::Sheet)) + "; the stipples in " +
                        FolderText(fileOf(OutputId::Grid));
}

OutputChoice SaveEverythingForm::Chosen() const {
    OutputChoice outputs(IsInEverything);
    const std::pair<OutputId, bool> wanted[] = {{OutputId::Grid, grid_},
                                                {OutputId::Pdf, pdf_},
                                                {OutputId::Svg, svg_},
                                                {OutputId::Page, page_}};
    for (const auto& [output, chosen] : wanted) {
        if (chosen) {
            outputs.Add(output);
        }
    }
    return outputs;
}

void SaveEverythingForm::SaveButton_Click() {
    if (grid_ && !MayReplaceSaved(place_)) {
        return;
    }
    const std::vector<fs::path> files =
        SaveFromWindow(place_, {.Outputs = Chosen(), .Fonts = exporter_, .Plan = plan_});
    place_.Screen.CloseForm(FormId::SaveEverything);
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
