#pragma once

#include <span>
#include <utility>
#include <vector>

#include "edits/lay_edits.h"
#include "edits/paint_index.h"

namespace vendrel {

/// Puts edits down in a layer, in the order they were made.
class LayerRecorder {
  public:
    /// Goes on with `layer`; one of another grid is placed by share. The base must outlive this.
    LayerRecorder(const ConvertedGrid& base, const EditLayer& layer);

    /// The number by which the edits name a paint.
    [[nodiscard]] int NumberOf(const PaintColor& paint);

    void Paint(CellPos at, int paint, StippleWish wish);
    void Erase(CellPos at);
    /// Everything that shows the paint `from`, namely `cells`, shows `to` now; what the next
    /// conversion gives `from` will, too.
    void Exchange(int from, int to, std::span<const CellPos> cells);

    /// The paints stand in this order from now on. Those of an order before that are missing here
    /// come behind, should they come again.
    void Order(const PaintList& paints);

    [[nodiscard]] EditLayer Layer() const;

    /// Makes sure that the layer gives exactly these stipples over the base: what differs is pinned
    /// down as painted by hand. Where there is an order, it becomes that of `paints`.
    void Settle(const PaintList& paints, const Grid<StippleCell>& cells);

  private:
    struct Wanted {
        StippleWish Wish = StippleWish::Paint;
        int Paint = 0;  // 0 where nothing was edited
    };

    void ExchangeBase(int from, int to);
    void SettleOrder(const PaintList& paints);
    bool PinDifferences(const PaintList& paints, const Grid<StippleCell>& cells);

    ConvertedGrid base_;
    PaintList paints_;
    PaintIndex index_;
    OneBased<int> basePaints_;  // by their numbers here
    Grid<Wanted> wanted_;
    std::vector<std::pair<int, int>> exchanges_;
    PaintList order_;
};

}  // namespace vendrel
