#include "forms/save_everything.h"

#include <filesystem>
#include <string>
#include <vector>

#include "output/painting_writer.h"
#include "output/sheet_writer.h"
#include "shell/busy_pointer.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> WriteAll(const Workplace& place, const Exporter& exporter) {
    const BusyPointer busy(place.Screen);
    const SavedSheets sheets = WriteSheets(place, {.Sheet = true, .Reference = true});
    place.Screen.SetCaption("Saving File, Please Wait....");
    std::vector<fs::path> files = {sheets.Sheet, sheets.Reference};
    files.push_back(PrintWorkform_Click(place));
    files.push_back(exporter.WriteColorChart(place));
    place.Screen.SetCaption("Vendrel -" + place.State.PictureName);
    return files;
}

}  // namespace

void SaveEverything(const Workplace& place, const Exporter& exporter) {
    const std::vector<fs::path> files = WriteAll(place, exporter);
    const fs::path folder = files.front().parent_path();
    std::string sentence = "Saved in " + folder.lexically_normal().string() + ":\n";
    for (const fs::path& file : files) {
        sentence += "\n" + file.filename().string();
    }
    if (place.Screen.Ask("Save Everything", sentence + "\n\nOpen the folder?")) {
        place.Screen.ShowFolder(folder);
    }
}

}  // namespace vendrel
