#pragma once

#include "shell/records.h"

namespace vendrel {

/// Every paint there is and its ranges. After loading only the choice among the ranges changes.
struct Catalogue {
    PaintList MasterColors;
    int MasterCount = 0;
    OneBased<PaintSet> PaintSets;
    int PaintSetCount = 0;
};

// The only ones that change a list of the catalogue together with its count.

void SetCatalogue(Catalogue& catalogue, PaintList paints);
void SetPaintSets(Catalogue& catalogue, OneBased<PaintSet> sets);

}  // namespace vendrel
