#include "forms/save_everything.h"

#include <filesystem>
#include <string>
#include <vector>

#include "forms/kit_saving.h"

namespace vendrel {

namespace fs = std::filesystem;

void SaveEverything(Workplace& place, const Exporter& exporter) {
    const std::vector<fs::path> files = SaveFromWindow(
        place, {.Outputs = OutputChoice(IsInEverything), .Fonts = &exporter, .Plan = {}});
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
