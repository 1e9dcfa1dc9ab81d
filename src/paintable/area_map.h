#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "eye/seen_table.h"
#include "paintable/limits.h"
#include "regions/labelling.h"

namespace vendrel {

/// A sum of seen differences, in 256ths.
using SeenSum = std::int64_t;

/// What a stipple's side of border counts, in 256ths: areas with smooth outlines are easier to
/// paint, and nobody sees half of the smallest difference.
inline constexpr SeenSum kSideCost = kSeenUnit / 2;

/// Stipples with their paints, and what they were before: all of one size, places from 0.
struct StipplePicture {
    ValueGrid Paints;     // paint of the table, from 0
    ValueGrid Colors;     // color of the table
    ValueGrid Protected;  // other than 0 where the limits are a third; may be empty
};

/// What one needs to know to judge areas.
struct AreaTerms {
    StippleSides Sides;
    PixelLimits Limits;
    PixelLimits ProtectedLimits;
};

/// The areas of a stipple grid while they change: stipples of one paint that touch side by side.
/// A stipple is an index, its neighbors lie Steps() away; around the grid stand stipples of no
/// area. Areas keep their number as long as they have stipples.
class AreaMap {
  public:
    static constexpr int kNoArea = -1;

    AreaMap(const StipplePicture& picture, const SeenTable& table, const AreaTerms& terms);

    // The grid.
    [[nodiscard]] std::array<int, 4> Beside(int cell) const {
        return {cell - stride_, cell - 1, cell + 1, cell + stride_};
    }
    [[nodiscard]] int CellAt(int x, int y) const { return (y + 1) * stride_ + x + 1; }
    [[nodiscard]] int Across() const { return across_; }
    [[nodiscard]] int Down() const { return down_; }
    [[nodiscard]] int AreaAt(int cell) const { return areaOf_[Index(cell)]; }

    // Areas.
    [[nodiscard]] int AreaCount() const { return static_cast<int>(areas_.size()); }
    [[nodiscard]] std::span<const int> CellsOf(int area) const { return areas_[Index(area)].Cells; }
    [[nodiscard]] int PaintOf(int area) const { return areas_[Index(area)].Paint; }
    [[nodiscard]] int PixelsOf(int area) const { return areas_[Index(area)].Pixels; }
    [[nodiscard]] bool Exists(int area) const { return !areas_[Index(area)].Cells.empty(); }
    [[nodiscard]] bool IsLargeEnough(int area) const;
    [[nodiscard]] bool IsBroadEnough(int area) const;
    [[nodiscard]] bool IsPaintable(int area) const {
        return IsLargeEnough(area) && IsBroadEnough(area);
    }
    [[nodiscard]] bool IsProtected(int area) const { return areas_[Index(area)].Protected > 0; }
    /// Stipples on the side of the square that holds the narrowest part.
    [[nodiscard]] int BlockOf(int area) const;

    // Costs.
    [[nodiscard]] int PaintCount() const { return paints_; }
    [[nodiscard]] SeenSum CostOf(int cell, int paint) const {
        return table_.Of(colorOf_[Index(cell)])[Index(paint)];
    }
    /// By paint, of all stipples of an area together.
    [[nodiscard]] std::span<const SeenSum> SumsOf(int area) const {
        return areas_[Index(area)].Sums;
    }
    /// What it costs to give a stipple to an area beside it, its borders included.
    [[nodiscard]] SeenSum CostOfMove(int cell, int area) const;

    // Changes.
    /// Whether the area of a stipple stays in one piece without it, and within the limits if it is
    /// now.
    [[nodiscard]] bool MayLeave(int cell) const;
    /// Whether the square of stipples from there on, to the right and below, with the side that
    /// BlockOf tells, holds the narrowest part of an area. False beyond the grid's edge.
    [[nodiscard]] bool HoldsNarrowest(int cell, bool isProtected) const {
        const BlockSize& block = blocks_[isProtected ? 1 : 0];
        return cell >= 0 && block.FitsAcross[Index(cell % stride_)] != 0 &&
               block.FitsDown[Index(cell / stride_)] != 0;
    }
    /// Gives a stipple to an area; the sums and areas of like paint stay as they are until
    /// SettleSums and JoinTwins.
    void Move(int cell, int area);
    void SettleSums(int cell, int from, int to);
    /// Makes one area of an area and all that have its paint beside these of its stipples; answers
    /// its number.
    int JoinTwins(int area, std::span<const int> cells);
    void Repaint(int area, int paint) { areas_[Index(area)].Paint = paint; }
    /// Makes one area of two, with the paint of `into`.
    void Unite(int area, int into);

    /// The paints as they are now.
    [[nodiscard]] ValueGrid Paints() const;

  private:
    struct Area {
        std::vector<int> Cells;
        std::vector<SeenSum> Sums;
        int Paint = 0;
        int Pixels = 0;
        int Protected = 0;            // stipples
        std::array<int, 2> Blocks{};  // squares that hold the narrowest part, and its third
    };
    struct BlockSize {
        int Side = 1;
        std::vector<std::uint8_t> FitsAcross;  // by column of the framed grid, where it starts
        std::vector<std::uint8_t> FitsDown;    // by row
    };

    static std::size_t Index(int i) { return static_cast<std::size_t>(i); }
    [[nodiscard]] int PixelsAt(int cell) const {
        return widths_[Index(cell % stride_)] * heights_[Index(cell / stride_)];
    }
    [[nodiscard]] const PixelLimits& LimitsOf(bool isProtected) const {
        return isProtected ? terms_.ProtectedLimits : terms_.Limits;
    }
    [[nodiscard]] BlockSize SizeBlock(double narrowest) const;
    [[nodiscard]] int BlocksAround(int cell, int area, std::size_t which) const;
    [[nodiscard]] bool IsWholeWithout(int cell) const;
    void Fill(const StipplePicture& picture);
    void Take(int cell, int sign);

    const SeenTable& table_;
    AreaTerms terms_;
    int paints_;
    int across_;
    int down_;
    int stride_;
    std::vector<int> widths_;   // by column of the framed grid
    std::vector<int> heights_;  // by row
    std::array<BlockSize, 2> blocks_;
    std::vector<int> areaOf_;
    std::vector<int> colorOf_;
    std::vector<std::uint8_t> protected_;
    std::vector<int> placeOf_;  // in its area's Cells
    std::vector<Area> areas_;
};

}  // namespace vendrel
