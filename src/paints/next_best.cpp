#include "paints/next_best.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace vendrel {

double PaintDifference(const PaintColor& a, const PaintColor& b) {
    return std::hypot(a.Red - b.Red, a.Green - b.Green, a.Blue - b.Blue);
}

bool SamePaint(const PaintColor& a, const PaintColor& b) {
    return ColorOf(a) == ColorOf(b) && a.Mfg == b.Mfg && a.PaintCode == b.PaintCode &&
           a.PaintName == b.PaintName;
}

std::vector<NextBestPaint> FindNextBest(const PaintColor& wanted,
                                        std::span<const PaintColor> candidates,
                                        const PaintList& taken, int count) {
    std::set<Color> used;
    for (const PaintColor& paint : taken) {
        used.insert(ColorOf(paint));
    }
    std::vector<NextBestPaint> best;
    for (const PaintColor& paint : candidates) {
        if (!used.contains(ColorOf(paint))) {
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
