#include "paints/catalogue.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "paints/paint_fields.h"

namespace vendrel {

void LoadMasterColors(Catalogue& catalogue, GivenWarnings& given, Ui& screen,
                      const ProgramFolder& folder) {
    SetCatalogue(catalogue, ReadPaints(given, screen, folder.DataFile("Data/studiopaint.csv")));
}

void BuildPaintSets(Catalogue& catalogue) {
    OneBased<PaintSet> sets;
    std::unordered_set<std::string_view> known;
    for (const PaintColor& paint : catalogue.MasterColors) {
        if (paint.Mfg.empty() || known.insert(paint.Mfg).second) {
            sets.Add({paint.Mfg, false});
        }
    }
    SetPaintSets(catalogue, std::move(sets));
}

}  // namespace vendrel
