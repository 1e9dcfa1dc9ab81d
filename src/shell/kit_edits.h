#pragma once

#include <vector>

#include "shell/records.h"
#include "support/cell_pos.h"
#include "support/grid.h"

namespace vendrel {

/// Sides that a sheet can have at the smallest stipples.
inline constexpr int kMostStipplesASide = 546;

/// What the painter wants of a stipple.
enum class StippleWish {
    Paint,      // this paint, wherever the conversion would put another
    Neighbors,  // what its neighbors have: loners and clean-up
};

/// One stipple that was edited.
struct StippleEdit {
    CellPos At;  // columns and rows from 1
    StippleWish Wish = StippleWish::Paint;
    int Paint = 0;  // of EditLayer::Paints; for Neighbors the one it took last

    bool operator==(const StippleEdit&) const = default;
};

/// Wherever the conversion puts one paint, another is wanted.
struct PaintExchange {
    PaintColor From;
    PaintColor To;

    bool operator==(const PaintExchange&) const = default;
};

/// A painter's edits over a converted grid, in terms that outlast its palette. Laid on: first the
/// exchanges, each on the paints of the conversion alone (none follows another), then the stipples,
/// and last the paints are put in the painter's order.
struct EditLayer {
    int Across = 0;  // the grid that places are counted on; another one takes them by share
    int Down = 0;
    PaintList Paints;                      // that Cells name; by identity (PaintId) in any palette
    std::vector<StippleEdit> Cells;        // row-major, one for a stipple at most
    std::vector<PaintExchange> Exchanges;  // one for a paint at most
    PaintList Order = {};                  // of symbols by hand; empty as the conversion has it

    [[nodiscard]] bool Empty() const { return Cells.empty() && Exchanges.empty() && Order.Empty(); }
    bool operator==(const EditLayer&) const = default;
};

/// The kit's grid as converted, and the edits that lie over it.
struct KitEdits {
    PaintList BasePaints;
    Grid<StippleCell> Base;
    EditLayer Edits;
    bool Converted = false;  // from the photo: the base is made anew when the kit is
};

}  // namespace vendrel
