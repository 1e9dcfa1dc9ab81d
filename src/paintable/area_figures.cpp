#include "paintable/area_figures.h"

#include <algorithm>
#include <cstddef>

#include "regions/inscribed_discs.h"

namespace vendrel {
namespace {

// What the scale rounds makes no area too small.
constexpr double kRounding = 1e-9;

}  // namespace

int AreaFigures::CountBelow(double mm2) const {
    return static_cast<int>(
        std::ranges::count_if(Areas, [mm2](const Area& a) { return a.Mm2 < mm2 - kRounding; }));
}

int AreaFigures::CountBelow(const PaintLimits& limits) const {
    return static_cast<int>(std::ranges::count_if(Areas, [&limits](const Area& a) {
        return a.Mm2 < limits.SmallestMm2 - kRounding || a.DiscMm < limits.NarrowestMm - kRounding;
    }));
}

AreaFigures MeasureAreas(const ValueGrid& paints, PrintScale scale) {
    const Regions regions = FindRegions(paints);
    const std::vector<InscribedDisc> discs = FindLargestDiscs(regions);
    AreaFigures figures;
    for (int id = 0; id < regions.Count(); ++id) {
        if (regions[id].Value == 0) {
            continue;
        }
        const AreaFigures::Area area{scale.Mm2(regions[id].Size),
                                     scale.Mm(2 * discs[static_cast<std::size_t>(id)].Radius)};
        const bool isFirst = figures.Areas.empty();
        figures.SmallestMm2 = isFirst ? area.Mm2 : std::min(figures.SmallestMm2, area.Mm2);
        figures.NarrowestMm = isFirst ? area.DiscMm : std::min(figures.NarrowestMm, area.DiscMm);
        figures.Areas.push_back(area);
    }
    return figures;
}

}  // namespace vendrel
