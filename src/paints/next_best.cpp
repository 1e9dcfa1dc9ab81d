#include "paints/next_best.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "shell/paint_id.h"

namespace vendrel {

double PaintDifference(const PaintColor& a, const PaintColor& b) {
    return std::hypot(a.Red - b.Red, a.Green - b.Green, a.Blue - b.Blue);
}

std::vector<NextBestPaint> FindNextBest(const PaintColor& wanted,
                                        std::span<const PaintColor> candidates,
                                        const PaintList& taken, int count) {
    std::set<Color> used;
    for (const PaintColor& paint : taken) {
        used.insert(ColorOf(paint));
    }
    std::vector<NextBestPaint> best;
    std::set<PaintId> known;
    for (const PaintColor& paint : candidates) {
        const PaintId id = IdOf(paint);
        const bool first = !id.Named() || known.insert(id).second;
        if (first && !used.contains(ColorOf(paint))) {
            best.push_back({paint, PaintDifference(wanted, paint)});
        }
    }
    std::ranges::stable_sort(best, {}, &NextBestPaint::Difference);
    if (best.size() > static_cast<std::size_t>(count)) {
        best.resize(static_cast<std::size_t>(count));
    }
    return best;
}

}  // namespace vendrel
