#include "paints/paint_list.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "paints/paint_sets.h"
#include "shell/warnings.h"
#include "support/disk.h"
#include "support/error.h"
#include "support/text_file.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

constexpr const char* kPaintList = "data/paintlist.txt";
constexpr const char* kCatalogue = "data/studiopaint.csv";

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
                 Shown(file) + ": the catalogue has no paint set " + names +
                     ". It is left out; choose others in the paint shop or correct the "
                     "name.");
    }
}

// Its own catalogue makes a folder strange to the list that ships with the program.
bool IsOfAnotherCatalogue(const Catalogue& catalogue, const ProgramFolder& folder,
                          const std::filesystem::path& list) {
    if (folder.Exists(kPaintList) || !folder.Exists(kCatalogue)) {
        return false;
    }
    const std::vector<std::string> names = SplitLines(ReadTextFile(list));
    return std::ranges::none_of(catalogue.PaintSets, [&names](const PaintSet& set) {
        return std::ranges::find(names, set.Name) != names.end();
    });
}

void StartPaintList(Catalogue& catalogue, const ProgramFolder& folder) {
    if (catalogue.PaintSetCount > 0) {
        catalogue.PaintSets[1].Selected = true;
        SavePaintList(catalogue, folder);
    }
}

void WarnOfStartedList(const Catalogue& catalogue, GivenWarnings& given, Ui& screen,
                       const ProgramFolder& folder) {
    if (catalogue.PaintSetCount > 0) {
        WarnOnce(given, screen,
                 Shown(folder.Path(kPaintList)) +
                     ": was not there, and the catalogue has none of the paint sets that come with "
                     "the program. The catalogue's first one, \"" +
                     catalogue.PaintSets[1].Name +
                     "\", is chosen; choose others in the paint shop or in that file.");
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
    if (IsOfAnotherCatalogue(catalogue, folder, file)) {
        StartPaintList(catalogue, folder);
        WarnOfStartedList(catalogue, given, screen, folder);
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
