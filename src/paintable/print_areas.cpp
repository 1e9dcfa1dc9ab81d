#include "paintable/print_areas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

#include "regions/inscribed_discs.h"
#include "support/cell_pos.h"
#include "support/row_view.h"

namespace vendrel {
namespace {

std::size_t At(int index) {
    return static_cast<std::size_t>(index);
}

// Pixels; the right and bottom ones are the first outside.
struct PixelBox {
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
};

class PrintAreas {
  public:
    PrintAreas(const BrushedPainting& painting, const PixelLimits& limits,
               const PixelLimits& protectedLimits)
        : painting_(painting),
          limits_(limits),
          protectedLimits_(protectedLimits),
          areas_(FindRegions(painting.Stipples)),
          ids_(painting.Pixels.Across(), painting.Pixels.Down()),
          isStale_(At(ids_.Down() + 1), true),
          squaredIn_(painting.Stipples.All().size()),
          cells_(areas_.List.size()),
          isProtected_(areas_.List.size()),
          isSound_(areas_.List.size()) {
        const ValueGrid& grid = painting.Stipples;
        column_ = StippleOfEach(ids_.Across() + 1, grid.Across() + 1);
        row_ = StippleOfEach(ids_.Down() + 1, grid.Down() + 1);
        for (int y = 0; y <= grid.Down(); ++y) {
            for (int x = 0; x <= grid.Across(); ++x) {
                const std::size_t area = At(areas_.Ids(x, y));
                cells_[area].push_back({x, y});
                isProtected_[area] = isProtected_[area] || (painting.Protected.Holds(x, y) &&
                                                            painting.Protected(x, y) != 0);
            }
        }
    }

    ValueGrid Run() {
        Claim();
        // Every round squares stipples, and with all of them square nothing is left to object to.
        do {
            changed_ = false;
            ++round_;
            printed_ = FindRegions(ids_);
            SquareTwins();
            SquareSplinters();
            if (!changed_) {
                SquareTooSmall();
            }
        } while (changed_);
        ValueGrid paints(ids_.Across(), ids_.Down());
        for (std::size_t i = 0; i < paints.All().size(); ++i) {
            paints.All()[i] = areas_[ids_.All()[i]].Value;
        }
        return paints;
    }

  private:
    [[nodiscard]] std::vector<int> StippleOfEach(int pixels, int count) const {
        std::vector<int> stipples;
        stipples.reserve(At(pixels));
        for (int pixel = 0; pixel < pixels; ++pixel) {
            stipples.push_back(StippleAt(pixel, painting_.StippleSize, count));
        }
        return stipples;
    }
    [[nodiscard]] int OwnArea(int x, int y) const {
        return areas_.Ids(column_[At(x)], row_[At(y)]);
    }

    // Every pixel goes to the area of its stipple or, where the brush of a stipple beside came
    // across, to that one's.
    void Claim() {
        for (int y = 0; y <= ids_.Down(); ++y) {
            const RowView<const int> paints = painting_.Pixels.Row(y);
            const RowView<int> areas = areas_.Ids.Row(row_[At(y)]);
            const RowView<int> ids = ids_.Row(y);
            for (int column = 0; column < areas.Count(); ++column) {
                const int own = areas[column];
                const int paint = areas_[own].Value;
                const PixelBox box = BoxOf({column, row_[At(y)]}, {column, row_[At(y)]});
                for (int x = box.Left; x < box.Right; ++x) {
                    ids[x] = paints[x] == paint ? own : ClaimantOf(x, y, paints[x], own);
                }
            }
        }
    }
    [[nodiscard]] int ClaimantOf(int x, int y, int paint, int own) const {
        const int size = painting_.StippleSize;
        const int toSide = (x - 1) % size < size / 2 ? -1 : 1;
        const int toEnd = (y - 1) % size < size / 2 ? -1 : 1;
        const std::array<CellPos, 8> steps = {{{toSide, 0},
                                               {0, toEnd},
                                               {toSide, toEnd},
                                               {-toSide, 0},
                                               {0, -toEnd},
                                               {toSide, -toEnd},
                                               {-toSide, toEnd},
                                               {-toSide, -toEnd}}};
        for (const CellPos step : steps) {
            const CellPos cell{column_[At(x)] + step.X, row_[At(y)] + step.Y};
            if (areas_.Ids.Holds(cell.X, cell.Y) && painting_.Stipples(cell.X, cell.Y) == paint) {
                return areas_.Ids(cell.X, cell.Y);
            }
        }
        return own;
    }

    // Two areas of one paint that meet in print would look like one: at a stipple's corner the
    // brush sweeps from one to the other.
    void SquareTwins() {
        // What was looked at in an earlier round has no twins unless it has changed since.
        const std::vector<bool> stale = std::exchange(isStale_, std::vector<bool>(isStale_.size()));
        for (int y = 0; y <= ids_.Down(); ++y) {
            const int before = std::max(y - 1, 0);
            if (!(stale[At(y)] || stale[At(before)] || isStale_[At(y)] || isStale_[At(before)])) {
                continue;
            }
            const RowView<int> row = ids_.Row(y);
            const RowView<int> above = ids_.Row(before);
            for (int x = 0; x < row.Count(); ++x) {
                if (x > 0 && row[x] != row[x - 1]) {
                    SquareIfTwins({x, y}, {x - 1, y});
                }
                if (row[x] != above[x]) {
                    SquareIfTwins({x, y}, {x, y - 1});
                }
            }
        }
    }
    void SquareIfTwins(CellPos one, CellPos other) {
        const int id = ids_(one.X, one.Y);
        const int beside = ids_(other.X, other.Y);
        if (id != beside && areas_[id].Value == areas_[beside].Value) {
            for (const CellPos at : {one, other}) {
                if (OwnArea(at.X, at.Y) != ids_(at.X, at.Y)) {
                    Square(column_[At(at.X)], row_[At(at.Y)]);
                }
            }
        }
    }

    // What is cut off from the largest piece of its area.
    void SquareSplinters() {
        const std::vector<int> largest = LargestPieces();
        std::vector<bool> isSplinter(printed_.List.size());
        for (int piece = 0; piece < printed_.Count(); ++piece) {
            isSplinter[At(piece)] = largest[At(printed_[piece].Value)] != piece;
        }
        if (std::ranges::find(isSplinter, true) == isSplinter.end()) {
            return;
        }
        for (int y = 0; y <= ids_.Down(); ++y) {
            const RowView<int> row = printed_.Ids.Row(y);
            for (int x = 0; x < row.Count(); ++x) {
                if (isSplinter[At(row[x])]) {
                    SquareSplinter(column_[At(x)], row_[At(y)]);
                }
            }
        }
    }
    void SquareSplinter(int x, int y) {
        if (WasSquare(x, y)) {
            SquareAll(areas_.Ids(x, y));
        } else {
            Square(x, y);
        }
    }
    // By area; -1 for one of which nothing is left.
    [[nodiscard]] std::vector<int> LargestPieces() const {
        std::vector<int> largest(areas_.List.size(), -1);
        for (int piece = 0; piece < printed_.Count(); ++piece) {
            int& best = largest[At(printed_[piece].Value)];
            best = best < 0 || printed_[piece].Size > printed_[best].Size ? piece : best;
        }
        return largest;
    }

    void SquareTooSmall() {
        const std::vector<int> pieces = LargestPieces();
        std::vector<int> unsound;
        for (int area = 0; area < areas_.Count(); ++area) {
            const PixelLimits& limits = LimitsOf(area);
            const int piece = pieces[At(area)];
            if (!isSound_[At(area)] &&
                (piece < 0 || printed_[piece].Size < limits.Smallest ||
                 !(HoldsSquare(area, limits.Narrowest) || HoldsDisc(area, limits.Narrowest)))) {
                unsound.push_back(area);
            }
            isSound_[At(area)] = true;
        }
        // Squaring one area may take pixels from others, which then are looked at again.
        for (const int area : unsound) {
            SquareAll(area);
        }
    }
    [[nodiscard]] const PixelLimits& LimitsOf(int area) const {
        return isProtected_[At(area)] ? protectedLimits_ : limits_;
    }

    // Whether some stipple, or a square of them, kept all its pixels: that is soon found in most
    // areas, and room enough for the disc.
    [[nodiscard]] bool HoldsSquare(int area, double narrowest) const {
        const int side =
            std::max(1, static_cast<int>(std::ceil(narrowest / painting_.StippleSize)));
        return std::ranges::any_of(cells_[At(area)], [&](CellPos cell) {
            const CellPos last{cell.X + side - 1, cell.Y + side - 1};
            if (!areas_.Ids.Holds(last.X, last.Y) || areas_.Ids(last.X, last.Y) != area) {
                return false;
            }
            const PixelBox box = BoxOf(cell, last);
            return std::min(box.Right - box.Left, box.Bottom - box.Top) >= narrowest &&
                   IsFull(box, area);
        });
    }
    [[nodiscard]] bool IsFull(const PixelBox& box, int area) const {
        for (int y = box.Top; y < box.Bottom; ++y) {
            const RowView<const int> row = ids_.Row(y).From(box.Left).First(box.Right - box.Left);
            if (std::ranges::any_of(row, [area](int id) { return id != area; })) {
                return false;
            }
        }
        return true;
    }

    // An area's pixels lie in its stipples and those around.
    [[nodiscard]] bool HoldsDisc(int area, double narrowest) const {
        CellPos first = cells_[At(area)].front();
        CellPos last = first;
        for (const CellPos cell : cells_[At(area)]) {
            first = {std::min(first.X, cell.X - 1), std::min(first.Y, cell.Y - 1)};
            last = {std::max(last.X, cell.X + 1), std::max(last.Y, cell.Y + 1)};
        }
        first = {std::max(first.X, 0), std::max(first.Y, 0)};
        last = {std::min(last.X, areas_.Ids.Across()), std::min(last.Y, areas_.Ids.Down())};
        const PixelBox box = BoxOf(first, last);
        ValueGrid part(box.Right - box.Left - 1, box.Bottom - box.Top - 1);
        for (int y = box.Top; y < box.Bottom; ++y) {
            for (int x = box.Left; x < box.Right; ++x) {
                part(x - box.Left, y - box.Top) = ids_(x, y) == area ? 1 : 0;
            }
        }
        if (HoldsPixelSquare(part, static_cast<int>(std::ceil(narrowest)))) {
            return true;
        }
        const Regions regions = FindRegions(part);
        const std::vector<InscribedDisc> discs = FindLargestDiscs(regions);
        for (int id = 0; id < regions.Count(); ++id) {
            if (regions[id].Value == 1 && 2 * discs[At(id)].Radius >= narrowest) {
                return true;
            }
        }
        return false;
    }

    // Of ones: what holds a square holds its disc, and discs take far longer to find.
    [[nodiscard]] static bool HoldsPixelSquare(const ValueGrid& part, int side) {
        std::vector<int> above(At(part.Across() + 2));  // side of the largest that ends in a pixel
        for (int y = 0; y <= part.Down(); ++y) {
            const RowView<const int> row = part.Row(y);
            int corner = 0;
            for (int x = 0; x < row.Count(); ++x) {
                int& here = above[At(x + 1)];
                const int least = std::min({corner, here, above[At(x)]});
                corner = std::exchange(here, row[x] == 1 ? least + 1 : 0);
                if (here >= side) {
                    return true;
                }
            }
        }
        return false;
    }

    void SquareAll(int area) {
        for (const CellPos cell : cells_[At(area)]) {
            Square(cell.X, cell.Y);
        }
    }
    [[nodiscard]] int& SquaredIn(int x, int y) {
        return squaredIn_[At(y * (painting_.Stipples.Across() + 1) + x)];
    }
    // Before this round.
    [[nodiscard]] bool WasSquare(int x, int y) {
        return SquaredIn(x, y) != 0 && SquaredIn(x, y) != round_;
    }
    // All pixels of a stipple become its own area's.
    void Square(int x, int y) {
        if (SquaredIn(x, y) != 0) {
            return;
        }
        SquaredIn(x, y) = round_;
        changed_ = true;
        const PixelBox box = BoxOf({x, y}, {x, y});
        for (int j = box.Top; j < box.Bottom; ++j) {
            isStale_[At(j)] = true;
            for (int i = box.Left; i < box.Right; ++i) {
                isSound_[At(ids_(i, j))] = false;
                ids_(i, j) = areas_.Ids(x, y);
            }
        }
    }
    // The pixels from one stipple to another.
    [[nodiscard]] PixelBox BoxOf(CellPos first, CellPos last) const {
        const int size = painting_.StippleSize;
        return {first.X == 0 ? 0 : first.X * size + 1, first.Y == 0 ? 0 : first.Y * size + 1,
                last.X == areas_.Ids.Across() ? ids_.Across() + 1 : (last.X + 1) * size + 1,
                last.Y == areas_.Ids.Down() ? ids_.Down() + 1 : (last.Y + 1) * size + 1};
    }

    const BrushedPainting& painting_;
    const PixelLimits& limits_;
    const PixelLimits& protectedLimits_;
    Regions areas_;
    Regions printed_;
    ValueGrid ids_;            // area per pixel
    std::vector<int> column_;  // of stipples, per pixel column
    std::vector<int> row_;
    std::vector<bool> isStale_;   // rows of pixels that changed since twins were last looked for
    std::vector<int> squaredIn_;  // per stipple the round, 0 while it is round
    int round_ = 0;
    std::vector<std::vector<CellPos>> cells_;
    std::vector<bool> isProtected_;
    std::vector<bool> isSound_;  // keeps the limits, unless it has lost pixels since
    bool changed_ = false;
};

}  // namespace

ValueGrid PaintsForPrint(const BrushedPainting& painting, const PixelLimits& limits,
                         const PixelLimits& protectedLimits) {
    return PrintAreas(painting, limits, protectedLimits).Run();
}

}  // namespace vendrel
