#include "touchup/small_areas.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "regions/crumbs.h"
#include "regions/inscribed_discs.h"

namespace vendrel {
namespace {

bool IsBefore(CellPos a, CellPos b) {
    return std::tie(a.Y, a.X) < std::tie(b.Y, b.X);
}

}  // namespace

ValueGrid PaintsOf(const EditSheet& sheet) {
    ValueGrid paints(sheet.Across() - 1, sheet.Down() - 1);
    for (int y = 1; y <= sheet.Down(); ++y) {
        for (int x = 1; x <= sheet.Across(); ++x) {
            paints(x - 1, y - 1) = sheet.PaintAt({x, y});
        }
    }
    return paints;
}

const HardArea* HardAreas::Next(CellPos from) const {
    if (List.empty()) {
        return nullptr;
    }
    const auto next = std::ranges::find_if(
        List, [from](const HardArea& area) { return IsBefore(from, area.At); });
    return next == List.end() ? &List.front() : &*next;
}

HardAreas FindHardAreas(const EditSheet& sheet, const StippleLimits& limits) {
    const Regions regions = FindRegions(PaintsOf(sheet));
    const std::vector<InscribedDisc> discs = FindLargestDiscs(regions);
    std::vector<bool> listed(discs.size());
    HardAreas hard;
    for (int y = 1; y <= sheet.Down(); ++y) {
        for (int x = 1; x <= sheet.Across(); ++x) {
            const int id = regions.Ids(x - 1, y - 1);
            const auto at = static_cast<std::size_t>(id);
            const int size = regions[id].Size;
            if (size >= limits.Smallest && 2 * discs[at].Radius >= limits.Narrowest) {
                continue;
            }
            if (!listed[at]) {
                listed[at] = true;
                hard.List.push_back({{x, y}, size});
            }
            hard.Cells.push_back({x, y});
        }
    }
    return hard;
}

AreaMerge PlanAreaMerge(const EditSheet& sheet, int smallest) {
    const Regions merged = FindRegionsWithoutCrumbs(PaintsOf(sheet), smallest);
    AreaMerge plan{{}, merged.Count()};
    for (int y = 1; y <= sheet.Down(); ++y) {
        for (int x = 1; x <= sheet.Across(); ++x) {
            const int from = sheet.PaintAt({x, y});
            const int to = merged[merged.Ids(x - 1, y - 1)].Value;
            if (to != from) {
                plan.Changes.push_back(ChangeAt({x, y}, from, to));
            }
        }
    }
    return plan;
}

int CountPrintedAfter(const EditSheet& sheet, const std::vector<CellChange>& changes) {
    ValueGrid paints = PaintsOf(sheet);
    for (const CellChange& change : changes) {
        paints(change.X - 1, change.Y - 1) = change.To;
    }
    return FindRegions(paints).Count();
}

int StipplesOfMm2(double mm2, double mmPerStipple) {
    return static_cast<int>(std::ceil(mm2 / (mmPerStipple * mmPerStipple) - 1e-9));
}

}  // namespace vendrel
