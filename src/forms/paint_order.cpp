#include "forms/paint_order.h"

#include <algorithm>
#include <set>
#include <utility>

#include "eye/lab.h"
#include "eye/seen_difference.h"
#include "output/chart_contents.h"
#include "shell/paint_id.h"
#include "support/letter_case.h"

namespace vendrel {
namespace {

double KeyOf(const PaintColor& paint, PaintOrder order) {
    if (order == PaintOrder::Symbol) {
        return 0;
    }
    const Lab lab = LabOf(ColorOf(paint));
    switch (order) {
        case PaintOrder::Hue:
            return HueAngleOf(lab);
        case PaintOrder::Lightness:
            return -lab.L;
        case PaintOrder::Use:
            return -paint.CellCount;
        default:
            return 0;
    }
}

}  // namespace

std::vector<int> SortedPaints(const PaintList& paints, PaintOrder order) {
    std::vector<std::pair<double, int>> keys;
    for (int i = 1; i <= paints.Count(); ++i) {
        keys.emplace_back(KeyOf(paints[i], order), i);
    }
    std::ranges::sort(keys);
    std::vector<int> sorted;
    for (const auto& [key, paint] : keys) {
        sorted.push_back(paint);
    }
    return sorted;
}

std::vector<PaintColor> OfferPaints(const PaintList& catalogue, const PaintList& palette,
                                    const std::string& words, const PaintColor& wanted) {
    std::set<PaintId> seen;
    for (const PaintColor& paint : palette) {
        seen.insert(IdOf(paint));
    }
    const std::string sought = ToLower(words);
    const Lab color = LabOf(ColorOf(wanted));
    std::vector<std::pair<double, const PaintColor*>> offers;
    for (const PaintColor& paint : catalogue) {
        if (ToLower(PaintLabel(paint)).find(sought) != std::string::npos &&
            seen.insert(IdOf(paint)).second) {
            offers.emplace_back(Ciede2000(color, LabOf(ColorOf(paint))), &paint);
        }
    }
    std::ranges::stable_sort(offers, {}, &std::pair<double, const PaintColor*>::first);
    std::vector<PaintColor> paints;
    for (const auto& [difference, paint] : offers) {
        paints.push_back(*paint);
    }
    return paints;
}

}  // namespace vendrel
