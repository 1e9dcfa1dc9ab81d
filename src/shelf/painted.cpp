#include "shelf/painted.h"

#include <algorithm>
#include <cmath>

#include "support/error.h"

namespace vendrel {
namespace {

// As the file keeps it, so that what is given back is what was taken.
double Kept(double ml) {
    return std::round(ml * 100) / 100;
}

}  // namespace

int TakePainted(Shelf& shelf, const std::string& kit, const std::vector<UsedPaint>& used) {
    int paints = 0;
    for (const UsedPaint& use : used) {
        ShelfPaint* const paint = FindOnShelf(shelf, use.Paint);
        if (paint != nullptr && paint->MlLeft) {
            const double taken = std::min(Kept(use.Ml), *paint->MlLeft);
            paint->MlLeft = Kept(*paint->MlLeft - taken);
            paint->Taken.push_back({kit, taken});
            ++paints;
        }
    }
    return paints;
}

int UndoPainted(Shelf& shelf, const std::string& kit) {
    int paints = 0;
    for (ShelfPaint& paint : shelf.Paints) {
        const auto last =
            std::ranges::find(paint.Taken.rbegin(), paint.Taken.rend(), kit, &TakenPaint::Kit);
        if (last != paint.Taken.rend()) {
            paint.MlLeft = Kept(paint.MlLeft.value_or(0) + last->Ml);
            paint.Taken.erase(std::next(last).base());
            ++paints;
        }
    }
    if (paints == 0) {
        throw Error("No painting of the kit \"" + kit +
                    "\" is noted with your paints, so there is nothing to give back.");
    }
    return paints;
}

}  // namespace vendrel
