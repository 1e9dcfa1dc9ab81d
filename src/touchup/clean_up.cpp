#include "touchup/clean_up.h"

#include <algorithm>
#include <array>

namespace vendrel {
namespace {

using Neighbourhood = std::array<int, 8>;

Neighbourhood PaintsAround(const EditSheet& sheet, CellPos at) {
    Neighbourhood paints{};
    std::size_t n = 0;
    for (int y = at.Y - 1; y <= at.Y + 1; ++y) {
        for (int x = at.X - 1; x <= at.X + 1; ++x) {
            if (x != at.X || y != at.Y) {
                paints[n++] = sheet.PaintAt({x, y});
            }
        }
    }
    return paints;
}

// The paint that should take the stipple over, 0 when it may stay as it is.
int TakingOver(const EditSheet& sheet, CellPos at, int level) {
    const Neighbourhood around = PaintsAround(sheet, at);
    const int own = sheet.PaintAt(at);
    // Most stipples lie inside their areas: these need no look at the others.
    if (std::count(around.begin(), around.end(), own) > 8 - level) {
        return 0;
    }
    int best = 0;
    auto most = static_cast<std::ptrdiff_t>(level) - 1;
    for (const int paint : around) {
        if (paint == own || !sheet.HoldsPaint(paint)) {
            continue;
        }
        const auto count = std::count(around.begin(), around.end(), paint);
        if (count > most || (count == most && best != 0 && paint < best)) {
            best = paint;
            most = count;
        }
    }
    return best;
}

}  // namespace

std::vector<CellChange> PlanCleanUp(const EditSheet& sheet, int level) {
    std::vector<CellChange> changes;
    for (int y = 1; y <= sheet.Down(); ++y) {
        for (int x = 1; x <= sheet.Across(); ++x) {
            const int paint = TakingOver(sheet, {x, y}, level);
            if (paint != 0) {
                changes.push_back(ChangeAt({x, y}, sheet.PaintAt({x, y}), paint));
            }
        }
    }
    return changes;
}

}  // namespace vendrel
