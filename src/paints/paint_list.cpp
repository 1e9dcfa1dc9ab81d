#include "paints/paint_list.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "paints/paint_sets.h"
#include "support/text_file.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

constexpr const char* kPaintList = "data/paintlist.txt";

void Select(WorkState& state, const std::string& name) {
    for (std::size_t i = 1; i < state.PaintSets.size(); ++i) {
        if (state.PaintSets[i].Name == name) {
            state.PaintSets[i].Selected = true;
        }
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
    SetPalette(state, std::vector<PaintColor>(1));
    const auto file = place.Folder.DataFile(kPaintList);
    if (!std::filesystem::exists(file)) {
        StartPaintList(place);
        return;
    }
    std::vector<PaintColor> paints(1);
    for (const std::string& line : SplitLines(ReadTextFile(file))) {
        Select(state, line);
        AppendPaintsOf(state, line, paints);
    }
    SetPalette(state, std::move(paints));
}

void SavePaintList(Workplace& place) {
    std::string text;
    for (std::size_t i = 1; i < place.State.PaintSets.size(); ++i) {
        const PaintSet& set = place.State.PaintSets[i];
        if (set.Selected) {
            text += set.Name + "\r\n";
        }
    }
    WriteWholeFile(place.Folder.Path(kPaintList), text, Lasting::Synced);
}

}  // namespace vendrel
