#include "paints/paint_list.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "paints/paint_sets.h"
#include "shell/palette.h"
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
bool Select(WorkState& state, const std::string& name) {
    bool known = false;
    for (PaintSet& set : state.PaintSets) {
        if (set.Name == name) {
            set.Selected = true;
            known = true;
        }
    }
    return known;
}

void WarnOfUnknown(const Workplace& place, const std::filesystem::path& file,
                   const std::string& names) {
    if (!names.empty()) {
        WarnOnce(place, Shown(file) + ": the catalogue has no paint set " + names +
                            ". It is left out; choose others in the paint shop or correct the "
                            "name.");
    }
}

// Its own catalogue makes a folder strange to the list that ships with the program.
bool IsOfAnotherCatalogue(const Workplace& place, const std::filesystem::path& list) {
    if (place.Folder.Exists(kPaintList) || !place.Folder.Exists(kCatalogue)) {
        return false;
    }
    const std::vector<std::string> names = SplitLines(ReadTextFile(list));
    return std::ranges::none_of(place.State.PaintSets, [&names](const PaintSet& set) {
        return std::ranges::find(names, set.Name) != names.end();
    });
}

void StartPaintList(Workplace& place) {
    if (place.State.PaintSetCount > 0) {
        place.State.PaintSets[1].Selected = true;
        SavePaintList(place);
    }
}

void WarnOfStartedList(const Workplace& place) {
    if (place.State.PaintSetCount > 0) {
        WarnOnce(place, Shown(place.Folder.Path(kPaintList)) +
                            ": was not there, and the catalogue has none of the paint sets that "
                            "come with the program. The catalogue's first one, \"" +
                            place.State.PaintSets[1].Name +
                            "\", is chosen; choose others in the paint shop or in that file.");
    }
}

}  // namespace

void LoadPaintList(Workplace& place) {
    WorkState& state = place.State;
    SetPalette(state, {});
    const auto file = place.Folder.DataFile(kPaintList);
    if (!Stands(file)) {
        StartPaintList(place);
        return;
    }
    if (IsOfAnotherCatalogue(place, file)) {
        StartPaintList(place);
        WarnOfStartedList(place);
        return;
    }
    PaintList paints;
    std::string unknown;
    for (const std::string& line : SplitLines(ReadTextFile(file))) {
        if (!Select(state, line) && !line.empty()) {
            unknown += (unknown.empty() ? "\"" : ", \"") + line + '"';
        }
        AppendPaintsOf(state, line, paints);
    }
    SetPalette(state, std::move(paints));
    WarnOfUnknown(place, file, unknown);
}

void SavePaintList(Workplace& place) {
    std::string text;
    for (const PaintSet& set : place.State.PaintSets) {
        if (set.Selected) {
            text += set.Name + "\r\n";
        }
    }
    WriteWholeFile(place.Folder.Path(kPaintList), text, Lasting::Synced);
}

}  // namespace vendrel
