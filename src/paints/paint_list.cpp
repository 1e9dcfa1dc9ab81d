#include "paints/paint_list.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "paints/paint_sets.h"
#include "shell/palette.h"
#include "shell/warnings.h"
#include "support/disk.h"
#include "support/text_file.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

constexpr const char* kPaintList = "data/paintlist.txt";

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
        WarnOnce(place, file.string() + ": the catalogue has no paint set " + names +
                            ". It is left out; choose others in the paint shop or correct the "
                            "name.");
    }
}

void StartPaintList(Workplace& place) {
    if (place.State.PaintSetCount > 0) {
        place.State.PaintSets[1].Selected = true;
        SavePaintList(place);
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
