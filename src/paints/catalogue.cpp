#include "paints/catalogue.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "paints/paint_fields.h"
#include "shell/catalogue.h"

namespace vendrel {

void LoadMasterColors(Workplace& place) {
    SetCatalogue(place.State, ReadPaints(place, place.Folder.DataFile("Data/studiopaint.csv")));
}

void BuildPaintSets(Workplace& place) {
    WorkState& state = place.State;
    OneBased<PaintSet> sets;
    std::unordered_set<std::string_view> known;
    for (const PaintColor& paint : state.MasterColors) {
        if (paint.Mfg.empty() || known.insert(paint.Mfg).second) {
            sets.Add({paint.Mfg, false});
        }
    }
    SetPaintSets(state, std::move(sets));
}

}  // namespace vendrel
