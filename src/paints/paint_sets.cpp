#include "paints/paint_sets.h"

#include <string>
#include <utility>

#include "support/counter.h"
#include "support/error.h"

namespace vendrel {

void FillSelectedPaintsList(PaintChoice& choice, const Catalogue& catalogue) {
    choice.SelectedPaintsList.clear();
    for (const PaintSet& set : catalogue.PaintSets) {
        if (set.Selected) {
            choice.SelectedPaintsList.push_back(set.Name);
        }
    }
}

void AppendPaintsOf(const Catalogue& catalogue, std::string_view setName, PaintList& paints) {
    for (const PaintColor& paint : catalogue.MasterColors) {
        if (paint.Mfg != setName) {
            continue;
        }
        if (paints.Count() >= kMaxCounter) {
            throw OverflowError(
                "The selected paint sets hold more than 32767 paints. Choose fewer paint sets.");
        }
        paints.Add(paint);
    }
}

void LoadColors(Palette& palette, const Catalogue& catalogue, const PaintChoice& choice) {
    PaintList paints;
    for (const std::string& name : choice.SelectedPaintsList) {
        AppendPaintsOf(catalogue, name, paints);
    }
    SetPalette(palette, std::move(paints));
}

}  // namespace vendrel
