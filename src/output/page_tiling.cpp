#include "output/page_tiling.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>

#include "support/error.h"

namespace vendrel {
namespace {

// Too little of a picture to be worth a page.
constexpr double kSmallestShare = 20;

// How many equal shares of `length` fit when a share shows the overlap on every side with a
// neighbour.
int SharesOf(double length, double room) {
    if (length <= room) {
        return 1;
    }
    return static_cast<int>(std::ceil(length / (room - 2 * kOverlapMm)));
}

std::optional<PagePlan> TryChoice(const SizeMm& canvas, const PaperChoice& choice) {
    const SizeMm room{choice.Sheet.Width - 2 * choice.Frame.Side,
                      choice.Sheet.Height - choice.Frame.Top - choice.Frame.Bottom};
    if (std::min(room.Width, room.Height) < kSmallestShare + 2 * kOverlapMm) {
        return std::nullopt;
    }
    return PagePlan{choice.Sheet,
                    canvas,
                    SharesOf(canvas.Width, room.Width),
                    SharesOf(canvas.Height, room.Height),
                    {}};
}

// Where share i of n begins; the same figure ends share i - 1, so nothing gapes.
double CutAt(double length, int i, int n) {
    return i == n ? length : length * i / n;
}

PageTile TileAt(const PagePlan& plan, int column, int row) {
    const PlanRect own{CutAt(plan.Canvas.Width, column, plan.Across),
                       CutAt(plan.Canvas.Height, row, plan.Down),
                       CutAt(plan.Canvas.Width, column + 1, plan.Across),
                       CutAt(plan.Canvas.Height, row + 1, plan.Down)};
    const PlanRect shown{column > 0 ? own.Left - kOverlapMm : own.Left,
                         row > 0 ? own.Top - kOverlapMm : own.Top,
                         column + 1 < plan.Across ? own.Right + kOverlapMm : own.Right,
                         row + 1 < plan.Down ? own.Bottom + kOverlapMm : own.Bottom};
    return {column, row, own, shown};
}

}  // namespace

SizeMm SizeOf(Paper paper) {
    switch (paper) {
        case Paper::A4:
            return {210, 297};
        case Paper::Letter:
            return {215.9, 279.4};
        case Paper::A3:
            break;
    }
    return {297, 420};
}

std::string PageTile::Name() const {
    constexpr int kLetters = 26;
    std::string row(1, static_cast<char>('A' + Row % kLetters));
    if (Row >= kLetters) {
        row.insert(row.begin(), static_cast<char>('A' + Row / kLetters - 1));
    }
    return row + std::to_string(Column + 1);
}

PagePlan PlanPages(const SizeMm& canvas, const std::vector<PaperChoice>& choices) {
    std::optional<PagePlan> best;
    for (const PaperChoice& choice : choices) {
        std::optional<PagePlan> plan = TryChoice(canvas, choice);
        if (plan && (!best || plan->Across * plan->Down < best->Across * best->Down)) {
            best = std::move(plan);
        }
    }
    if (!best) {
        throw Error(
            "The paper leaves no room for the plan beside its list of paints. Choose "
            "larger paper.");
    }
    for (int row = 0; row < best->Down; ++row) {
        for (int column = 0; column < best->Across; ++column) {
            best->Tiles.push_back(TileAt(*best, column, row));
        }
    }
    return *best;
}

std::vector<int> PaintsWithin(const PaintedRegions& regions, const PlanRect& part) {
    const int left = std::max(0, static_cast<int>(std::floor(part.Left)));
    const int top = std::max(0, static_cast<int>(std::floor(part.Top)));
    const int right = std::min(regions.Ids.Across() + 1, static_cast<int>(std::ceil(part.Right)));
    const int bottom = std::min(regions.Ids.Down() + 1, static_cast<int>(std::ceil(part.Bottom)));
    std::set<int> paints;
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            paints.insert(regions.List[static_cast<std::size_t>(regions.Ids(x, y))].Paint);
        }
    }
    return {paints.begin(), paints.end()};
}

}  // namespace vendrel
