#pragma once

#include <vector>

#include "paints/nearest_paint.h"
#include "shell/palette.h"
#include "shell/stipple_grid.h"

namespace vendrel {

/// Index of the paint with the fewest stipples, the lowest of equals. 0 when
/// there is no paint or each has 32767 stipples.
[[nodiscard]] int LeastUsed(const OneBased<int>& counts);

/// Drops paints from the palette one by one. Merges and counts are kept per paint; the grid and
/// the palette are rewritten once, by Commit, however many paints go.
class PaletteReduction {
  public:
    /// `counts` is what CountColors found, or empty when nobody asks for the counts.
    PaletteReduction(const Palette& palette, OneBased<int> counts);

    [[nodiscard]] int PaintCount() const { return colors_.Count(); }
    /// Stipples per remaining paint.
    [[nodiscard]] const OneBased<int>& Counts() const { return counts_; }

    /// Drops remaining paint `index`; its stipples go to the nearest other paint.
    void Remove(int index);
    /// Rewrites the palette that the reduction was made from and the grid painted with it.
    void Commit(Palette& palette, StippleGrid& grid) const;

  private:
    struct Merge {
        int From = 0;  // indices of the palette before the reduction
        int Into = 0;  // 0 when no other paint was left
    };
    [[nodiscard]] OneBased<int> NewIndices() const;

    OneBased<Channels> colors_;  // of the remaining paints
    OneBased<int> origins_;      // their indices before the reduction
    OneBased<int> counts_;
    std::vector<Merge> merges_;
};

}  // namespace vendrel
