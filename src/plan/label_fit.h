#pragma once

#include "plan/line_index.h"
#include "plan/symbol_room.h"

namespace vendrel {

/// A symbol's place and height.
struct FittedSymbol {
    PlanPoint Centre;
    double Height = 0;  // 0 where there is no room at all
};

/// Fits symbols between the lines of a plan, in pixels. `ids` are the areas before their lines were
/// smoothed: a symbol stays with its middle on a pixel of its area.
class LabelFit {
  public:
    LabelFit(const LineIndex& index, const PixelGrid& ids, const SymbolAir& air)
        : index_(index), ids_(ids), air_(air) {}

    /// As tall as the air allows, with the middle there or within a few small steps of it.
    [[nodiscard]] FittedSymbol Near(const PlanPoint& wanted, double aspect, int area) const;
    /// The same exactly there.
    [[nodiscard]] FittedSymbol At(const PlanPoint& centre, double aspect, int area) const;
    [[nodiscard]] const SymbolAir& Air() const { return air_; }
    [[nodiscard]] const LineIndex& Lines() const { return index_; }

  private:
    [[nodiscard]] PlanPoint PlaceIn(int area, const PlanPoint& wanted) const;
    [[nodiscard]] bool IsIn(int area, const PlanPoint& at) const;

    const LineIndex& index_;
    const PixelGrid& ids_;
    SymbolAir air_;
};

}  // namespace vendrel
