#include "shell/catalogue.h"

#include <utility>

namespace vendrel {

void SetCatalogue(Catalogue& catalogue, PaintList paints) {
    catalogue.MasterColors = std::move(paints);
    catalogue.MasterCount = catalogue.MasterColors.Count();
}

void SetPaintSets(Catalogue& catalogue, OneBased<PaintSet> sets) {
    catalogue.PaintSets = std::move(sets);
    catalogue.PaintSetCount = catalogue.PaintSets.Count();
}

}  // namespace vendrel
