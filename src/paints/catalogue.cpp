#include "paints/catalogue.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "paints/paint_fields.h"

namespace vendrel {

void LoadMasterColors(Workplace& place) {
    place.State.MasterColors = ReadPaints(place, place.Folder.DataFile("Data/studiopaint.csv"));
    place.State.MasterCount = static_cast<int>(place.State.MasterColors.size()) - 1;
}

void BuildPaintSets(Workplace& place) {
    WorkState& state = place.State;
    std::vector<PaintSet> sets(1);
    std::unordered_set<std::string_view> known;
    for (std::size_t i = 1; i < state.MasterColors.size(); ++i) {
        const std::string& mfg = state.MasterColors[i].Mfg;
        if (mfg.empty() || known.insert(mfg).second) {
            sets.push_back({mfg, false});
        }
    }
    state.PaintSets = std::move(sets);
    state.PaintSetCount = static_cast<int>(state.PaintSets.size()) - 1;
}

}  // namespace vendrel
