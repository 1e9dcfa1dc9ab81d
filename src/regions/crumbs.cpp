#include "regions/crumbs.h"

#include <map>
#include <span>
#include <vector>

#include "regions/borders.h"
#include "support/list.h"

namespace vendrel {
namespace {

// The crumb's own value where it touches nothing but crumbs.
int ValueOfLongestBorder(const Regions& regions, int crumb, std::span<const Border> borders,
                         int smallest) {
    std::map<int, int> lengths;
    for (const Border& border : borders) {
        if (regions[border.Beside].Size >= smallest) {
            lengths[regions[border.Beside].Value] += border.Length;
        }
    }
    int value = regions[crumb].Value;
    int longest = 0;
    for (const auto& [beside, length] : lengths) {
        if (length > longest) {
            value = beside;
            longest = length;
        }
    }
    return value;
}

// Answers whether any crumb was.
bool DissolveCrumbs(ValueGrid& values, const Regions& regions, int smallest) {
    const Borders borders = FindBorders(regions);
    std::vector<int> valueOf;
    bool changed = false;
    for (int id = 0; id < regions.Count(); ++id) {
        const int value = regions[id].Value;
        valueOf.push_back(regions[id].Size >= smallest
                              ? value
                              : ValueOfLongestBorder(regions, id, borders.Of(id), smallest));
        changed = changed || valueOf.back() != value;
    }
    for (std::size_t i = 0; i < values.All().size(); ++i) {
        values.All()[i] = At(valueOf, regions.Ids.All()[i]);
    }
    return changed;
}

}  // namespace

Regions FindRegionsWithoutCrumbs(ValueGrid values, int smallest) {
    Regions regions = FindRegions(values);
    while (smallest > 1 && DissolveCrumbs(values, regions, smallest)) {
        regions = FindRegions(values);
    }
    return regions;
}

}  // namespace vendrel
