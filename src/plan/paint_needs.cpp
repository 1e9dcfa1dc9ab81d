#include "plan/paint_needs.h"

#include <cmath>
#include <cstddef>

#include "support/decimals.h"

namespace vendrel {
namespace {

std::string Short(double number) {
    return Decimals(number, number == std::floor(number) ? 0 : 1);
}

}  // namespace

std::vector<PaintNeed> PaintNeeds(const PaintedPages& painted, int paints, const PaintUse& use) {
    constexpr double kMm2PerCm2 = 100;
    const PrintScale scale = painted.Scale;
    std::vector<PaintNeed> needs(static_cast<std::size_t>(paints));
    const auto of = [&needs](int paint) -> PaintNeed& {
        return needs[static_cast<std::size_t>(paint - 1)];
    };
    for (const Region& region : painted.Regions.List) {
        of(region.Value).Cm2 += scale.Mm2(region.Size) / kMm2PerCm2;
    }
    for (const PageTile& tile : painted.Pages.Tiles) {
        const PlanRect own{scale.Pixels(tile.Own.Left), scale.Pixels(tile.Own.Top),
                           scale.Pixels(tile.Own.Right), scale.Pixels(tile.Own.Bottom)};
        for (const int paint : painted.Paints.Within(own)) {
            of(paint).Pages.push_back(tile.Name());
        }
    }
    for (int paint = 1; paint <= paints; ++paint) {
        PaintNeed& need = of(paint);
        need.Paint = paint;
        need.Ml = need.Cm2 * use.Coats / use.Cm2PerMl;
        need.Pots = PotsOf(need.Ml * (1 + kToSpare), use.PotMl);
    }
    return needs;
}

int PotsOf(double ml, double potMl) {
    constexpr double kRounding = 1e-9;
    return potMl > 0 ? static_cast<int>(std::ceil(ml / potMl - kRounding)) : 0;
}

PaintNeed SumOf(const std::vector<PaintNeed>& needs) {
    PaintNeed sum;
    for (const PaintNeed& need : needs) {
        sum.Cm2 += need.Cm2;
        sum.Ml += need.Ml;
        sum.Pots += need.Pots;
    }
    return sum;
}

std::string UseText(const PaintUse& use, bool inches) {
    return std::to_string(use.Coats) + (use.Coats == 1 ? " coat" : " coats") + " at 1 ml for " +
           (inches ? Short(use.Cm2PerMl / kCm2PerSqIn) + " sq in"
                   : Short(use.Cm2PerMl) + " cm\u00b2") +
           (use.PotMl > 0 ? ", pots of " + Short(use.PotMl) + " ml with 15 % to spare" : "");
}

}  // namespace vendrel
