#include "plan/page_tiling.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "output/symbol_set.h"
#include "support/error.h"

namespace vendrel {
namespace {

// Too little of a picture to be worth a page.
constexpr double kSmallestShare = 20;

// How many equal shares of `length` fit when all but the last show the overlap too.
int SharesOf(double length, double room) {
    if (length <= room) {
        return 1;
    }
    return static_cast<int>(std::ceil(length / (room - kOverlapMm)));
}

SizeMm RoomOn(const SizeMm& sheet, const PageFrame& frame) {
    return {sheet.Width - 2 * frame.Side, sheet.Height - frame.Top - frame.Bottom};
}

double LongestOf(int shares, double room) {
    return shares == 1 ? room : shares * (room - kOverlapMm);
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
    const PlanRect shown{own.Left, own.Top,
                         column + 1 < plan.Across ? own.Right + kOverlapMm : own.Right,
                         row + 1 < plan.Down ? own.Bottom + kOverlapMm : own.Bottom};
    return {column, row, own, shown};
}

void CutTiles(PagePlan& plan) {
    plan.Tiles.clear();
    for (int row = 0; row < plan.Down; ++row) {
        for (int column = 0; column < plan.Across; ++column) {
            plan.Tiles.push_back(TileAt(plan, column, row));
        }
    }
}

std::optional<PagePlan> TryChoice(const SizeMm& canvas, const PaperChoice& choice) {
    const SizeMm room = RoomOn(choice.Sheet, choice.Frame);
    if (std::min(room.Width, room.Height) < kSmallestShare + kOverlapMm) {
        return std::nullopt;
    }
    PagePlan plan{choice.Sheet,
                  choice.Frame,
                  canvas,
                  SharesOf(canvas.Width, room.Width),
                  SharesOf(canvas.Height, room.Height),
                  {}};
    CutTiles(plan);
    return plan;
}

bool IsBetter(const PagePlan& plan, const PagePlan& other) {
    return plan.Tiles.size() != other.Tiles.size() ? plan.Tiles.size() < other.Tiles.size()
                                                   : RoomToGrow(plan) > RoomToGrow(other);
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

PagePlan PlanPages(const SizeMm& canvas, const std::vector<PaperChoice>& choices,
                   const PlanCheck& holds) {
    std::optional<PagePlan> best;
    for (const PaperChoice& choice : choices) {
        std::optional<PagePlan> plan = TryChoice(canvas, choice);
        if (plan && (!best || IsBetter(*plan, *best)) && (!holds || holds(*plan))) {
            best = std::move(plan);
        }
    }
    if (!best) {
        throw Error(
            "The paper leaves no room for the plan beside its list of paints. Choose "
            "larger paper.");
    }
    return *best;
}

double RoomToGrow(const PagePlan& plan) {
    const SizeMm room = RoomOn(plan.Sheet, plan.Frame);
    return std::min(LongestOf(plan.Across, room.Width) / plan.Canvas.Width,
                    LongestOf(plan.Down, room.Height) / plan.Canvas.Height);
}

PagePlan Enlarged(const PagePlan& plan, double times) {
    PagePlan larger = plan;
    larger.Canvas = {plan.Canvas.Width * times, plan.Canvas.Height * times};
    CutTiles(larger);
    return larger;
}

std::vector<int> PaintsWithin(const PaintedRegions& regions, const PlanRect& part) {
    const int left = std::max(0, static_cast<int>(std::floor(part.Left)));
    const int top = std::max(0, static_cast<int>(std::floor(part.Top)));
    const int right = std::min(regions.Ids.Across() + 1, static_cast<int>(std::ceil(part.Right)));
    const int bottom = std::min(regions.Ids.Down() + 1, static_cast<int>(std::ceil(part.Bottom)));
    std::array<bool, kSymbolCount + 1> found{};
    for (int y = top; y < bottom; ++y) {
        for (int x = left; x < right; ++x) {
            const int region = regions.Ids(x, y);
            found.at(static_cast<std::size_t>(
                regions.List[static_cast<std::size_t>(region)].Paint)) = true;
        }
    }
    std::vector<int> paints;
    for (std::size_t paint = 0; paint < found.size(); ++paint) {
        if (found[paint]) {
            paints.push_back(static_cast<int>(paint));
        }
    }
    return paints;
}

}  // namespace vendrel
