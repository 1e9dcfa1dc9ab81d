#include "plan/page_tiling.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "support/error.h"

namespace vendrel {
namespace {

// Too little of a picture to be worth a page.
constexpr double kSmallestShare = 20;

constexpr double kLengthRounding = 1e-9;

// Where the shares of a length begin and, at last, where it ends.
using Cuts = std::vector<double>;

SizeMm RoomOn(const PaperChoice& paper) {
    return {paper.Sheet.Width - 2 * paper.Frame.Side - paper.Beside,
            paper.Sheet.Height - paper.Frame.Top - paper.Frame.Bottom};
}

// Stipples larger than the smallest share have to bear a cut.
Cuts CutInto(int shares, double length, const StippleRuler& stipples) {
    Cuts cuts{0};
    for (int i = 1; i < shares; ++i) {
        const double at = length * i / shares;
        const bool snaps = stipples.Step > 0 && stipples.Step < kSmallestShare;
        cuts.push_back(snaps ? stipples.First +
                                   std::round((at - stipples.First) / stipples.Step) * stipples.Step
                             : at);
    }
    cuts.push_back(length);
    return cuts;
}

double OverlapBehind(std::size_t share, const Cuts& cuts) {
    return share + 2 < cuts.size() ? kOverlapMm : 0;
}

bool Fit(const Cuts& cuts, double room) {
    for (std::size_t i = 0; i + 1 < cuts.size(); ++i) {
        if (cuts[i + 1] - cuts[i] + OverlapBehind(i, cuts) > room + kLengthRounding) {
            return false;
        }
    }
    return true;
}

// Cuts into the fewest shares, at least `shares`, that fit the room; none when they would be too
// small to be worth a page.
std::optional<Cuts> FewestShares(int shares, double length, double room,
                                 const StippleRuler& stipples) {
    for (; shares == 1 || length / shares >= kSmallestShare; ++shares) {
        Cuts cuts = CutInto(shares, length, stipples);
        if (Fit(cuts, room)) {
            return cuts;
        }
    }
    return std::nullopt;
}

PagePlan TilesOf(const CanvasToCut& canvas, const PaperChoice& paper, const Cuts& columns,
                 const Cuts& rows) {
    PagePlan plan{paper,
                  canvas.Size,
                  static_cast<int>(columns.size()) - 1,
                  static_cast<int>(rows.size()) - 1,
                  {}};
    for (std::size_t row = 0; row + 1 < rows.size(); ++row) {
        for (std::size_t column = 0; column + 1 < columns.size(); ++column) {
            const PlanRect own{columns[column], rows[row], columns[column + 1], rows[row + 1]};
            const PlanRect shown{own.Left, own.Top, own.Right + OverlapBehind(column, columns),
                                 own.Bottom + OverlapBehind(row, rows)};
            plan.Tiles.push_back({static_cast<int>(column), static_cast<int>(row), own, shown,
                                  canvas.List ? canvas.List(paper, own) : 0});
        }
    }
    return plan;
}

bool HoldsItsLists(const PagePlan& plan) {
    const double room = RoomOn(plan.Paper).Height + kLengthRounding;
    const bool beside = plan.Paper.Beside > 0;
    return std::ranges::all_of(plan.Tiles, [room, beside](const PageTile& tile) {
        const double height = tile.Shown.Bottom - tile.Shown.Top;
        return (beside ? std::max(height, tile.ListHeight) : height + tile.ListHeight) <= room;
    });
}

// With that many columns: as few rows as leave room for the lists.
std::optional<PagePlan> TryColumns(const CanvasToCut& canvas, const PaperChoice& paper,
                                   const Cuts& columns) {
    for (int shares = 1;; ++shares) {
        const std::optional<Cuts> rows =
            FewestShares(shares, canvas.Size.Height, RoomOn(paper).Height, canvas.Stipples);
        if (!rows) {
            return std::nullopt;
        }
        PagePlan plan = TilesOf(canvas, paper, columns, *rows);
        if (HoldsItsLists(plan)) {
            return plan;
        }
        shares = static_cast<int>(rows->size()) - 1;
    }
}

bool IsBetter(const PagePlan& plan, const PagePlan& other) {
    return plan.Tiles.size() != other.Tiles.size() ? plan.Tiles.size() < other.Tiles.size()
                                                   : RoomToGrow(plan) > RoomToGrow(other);
}

// One column more than needed may list so much less that a row is saved.
std::optional<PagePlan> TryPaper(const CanvasToCut& canvas, const PaperChoice& paper) {
    const SizeMm room = RoomOn(paper);
    if (std::min(room.Width, room.Height) < kSmallestShare + kOverlapMm) {
        return std::nullopt;
    }
    std::optional<PagePlan> best;
    int shares = 1;
    for (int tries = 0; tries < 2; ++tries) {
        const std::optional<Cuts> columns =
            FewestShares(shares, canvas.Size.Width, room.Width, canvas.Stipples);
        if (!columns) {
            break;
        }
        std::optional<PagePlan> plan = TryColumns(canvas, paper, *columns);
        if (plan && (!best || IsBetter(*plan, *best))) {
            best = std::move(plan);
        }
        shares = static_cast<int>(columns->size());
    }
    return best;
}

PlanRect Times(const PlanRect& rect, double times) {
    return {rect.Left * times, rect.Top * times, rect.Right * times, rect.Bottom * times};
}

}  // namespace

std::string PageTile::Name() const {
    constexpr int kLetters = 26;
    std::string row(1, static_cast<char>('A' + Row % kLetters));
    if (Row >= kLetters) {
        row.insert(row.begin(), static_cast<char>('A' + Row / kLetters - 1));
    }
    return row + std::to_string(Column + 1);
}

PagePlan PlanPages(const CanvasToCut& canvas, const std::vector<PaperChoice>& choices) {
    std::optional<PagePlan> best;
    for (const PaperChoice& paper : choices) {
        std::optional<PagePlan> plan = TryPaper(canvas, paper);
        if (plan && (!best || IsBetter(*plan, *best))) {
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
    const SizeMm room = RoomOn(plan.Paper);
    double times = std::numeric_limits<double>::infinity();
    for (const PageTile& tile : plan.Tiles) {
        const double across = room.Width - (tile.Shown.Right - tile.Own.Right);
        const double below = plan.Paper.Beside > 0 ? 0 : tile.ListHeight;
        const double down = room.Height - below - (tile.Shown.Bottom - tile.Own.Bottom);
        times = std::min({times, across / (tile.Own.Right - tile.Own.Left),
                          down / (tile.Own.Bottom - tile.Own.Top)});
    }
    return times;
}

PagePlan Enlarged(const PagePlan& plan, double times) {
    PagePlan larger = plan;
    larger.Canvas = {plan.Canvas.Width * times, plan.Canvas.Height * times};
    for (PageTile& tile : larger.Tiles) {
        const double right = tile.Shown.Right - tile.Own.Right;
        const double below = tile.Shown.Bottom - tile.Own.Bottom;
        tile.Own = Times(tile.Own, times);
        tile.Shown = {tile.Own.Left, tile.Own.Top, tile.Own.Right + right, tile.Own.Bottom + below};
    }
    return larger;
}

}  // namespace vendrel
