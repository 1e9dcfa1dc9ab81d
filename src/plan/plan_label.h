#pragma once

#include <optional>
#include <vector>

#include "plan/outlines.h"
#include "plan/symbol_aspects.h"

namespace vendrel {

/// A symbol on the plan, in picture pixels.
struct PlanLabel {
    int Region = 0;
    PlanPoint Centre;
    double Height = 0;  // of its box; the box is Height * the symbol's aspect wide
    std::optional<PlanPoint> PointsAt{};  // in its region, where it stands outside of it
    bool operator==(const PlanLabel&) const = default;
};

/// What a label covers.
[[nodiscard]] PlanRect BoxOf(const PlanLabel& label, double aspect);

/// From a label that stands outside its region to the point there that it belongs to: two points,
/// the first at the label's box.
[[nodiscard]] PlanLine LeaderOf(const PlanLabel& label, double aspect);

/// Where pages are cut, first pixel of each; without the 0.
struct PageCuts {
    std::vector<int> Columns{};
    std::vector<int> Rows{};

    /// Whether both lie on one page.
    [[nodiscard]] bool AreTogether(const PlanPoint& one, const PlanPoint& other) const;
    /// Whether a part lies on more than one.
    [[nodiscard]] bool Meet(const PlanRect& part) const;
};

/// Whether a page draws a label: some of it lies in the page's own share, so that the halves of a
/// symbol on a cut meet, or all of it in what the page shows, what it points at included. Both
/// parts in picture pixels.
[[nodiscard]] bool IsLabelOn(const PlanLabel& label, double aspect, const PlanRect& own,
                             const PlanRect& shown);

}  // namespace vendrel
