#include "shell/found_palette.h"

#include <utility>

#include "support/counter.h"

namespace vendrel {

void SetFoundColors(FoundPalette& found, PaintList paints) {
    found.FoundColors = std::move(paints);
    found.FoundCount = found.FoundColors.Count();
}

void AddFoundColor(FoundPalette& found, PaintColor paint) {
    CountUp(found.FoundCount, "paints found in the photo", "fewer paint sets");
    found.FoundColors.Add(std::move(paint));
}

}  // namespace vendrel
