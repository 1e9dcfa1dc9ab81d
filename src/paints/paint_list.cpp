#include "paints/paint_list.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "paints/paint_sets.h"
#include "shell/warnings.h"
#include "support/disk.h"
#include "support/text_file.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

constexpr const char* kPaintList = "data/paintlist.txt";

// False when there is no such set.
bool Select(Catalogue& catalogue, const std::string& name) {
    bool known = false;
    for (PaintSet& set : catalogue.PaintSets) {
        if (set.Name == name) {
            set.Selected = true;
            known = true;
        }
    }
    return known;
}

void WarnOfUnknown(GivenWarnings& given, Ui& screen, const std::filesystem::path& file,
                   const std::string& names) {
    if (!names.empty()) {
        WarnOnce(given, screen,
                 file.string() + ": the catalogue has no paint set " + names +
                     ". It is left out; choose others in the paint shop or correct the "
                     "name.");
    }
}

void StartPaintList(Catalogue& catalogue, const ProgramFolder& folder) {
    if (catalogue.PaintSetCount > 0) {
        catalogue.PaintSets[1].Selected = true;
        SavePaintList(catalogue, folder);
    }
}

}  // namespace

void LoadPaintList(Catalogue& catalogue, Palette& palette, GivenWarnings& given, Ui& screen,
                   const ProgramFolder& folder) {
    SetPalette(palette, {});
    const auto file = folder.DataFile(kPaintList);
    if (!Stands(file)) {
        StartPaintList(catalogue, folder);
        return;
    }
    PaintList paints;
    std::string unknown;
    for (const std::string& line : SplitLines(ReadTextFile(file))) {
        if (!Select(catalogue, line) && !line.empty()) {
            unknown += (unknown.empty() ? "\"" : ", \"") + line + '"';
        }
        AppendPaintsOf(catalogue, line, paints);
    }
    SetPalette(palette, std::move(paints));
    WarnOfUnknown(given, screen, file, unknown);
}

void SavePaintList(const Catalogue& catalogue, const ProgramFolder& folder) {
    std::string text;
    for (const PaintSet& set : catalogue.PaintSets) {
        if (set.Selected) {
            text += set.Name + "\r\n";
        }
    }
    WriteWholeFile(folder.Path(kPaintList), text, Lasting::Synced);
}

}  // namespace vendrel
