#include "plan/plan_label.h"

#include <algorithm>

namespace vendrel {

PlanRect BoxOf(const PlanLabel& label, double aspect) {
    const double reachX = label.Height * aspect / 2;
    const double reachY = label.Height / 2;
    return {label.Centre.X - reachX, label.Centre.Y - reachY, label.Centre.X + reachX,
            label.Centre.Y + reachY};
}

PlanLine LeaderOf(const PlanLabel& label, double aspect) {
    constexpr double kGap = 0.12;  // of the symbol's height, between it and the line
    const PlanPoint to = label.PointsAt.value_or(label.Centre);
    const double gap = kGap * label.Height;
    const PlanRect box = BoxOf(label, aspect);
    const PlanRect around{box.Left - gap, box.Top - gap, box.Right + gap, box.Bottom + gap};
    const std::vector<PlanLine> inside = ClipLine({label.Centre, to}, around);
    return {inside.empty() ? label.Centre : inside.front().back(), to};
}

bool PageCuts::AreTogether(const PlanPoint& one, const PlanPoint& other) const {
    const auto parts = [](const std::vector<int>& cuts, double a, double b) {
        return std::ranges::any_of(cuts, [a, b](int cut) { return (a < cut) != (b < cut); });
    };
    return !parts(Columns, one.X, other.X) && !parts(Rows, one.Y, other.Y);
}

bool PageCuts::Meet(const PlanRect& part) const {
    const auto meets = [](const std::vector<int>& cuts, double from, double to) {
        return std::ranges::any_of(cuts, [&](int cut) { return cut > from && cut < to; });
    };
    return meets(Columns, part.Left, part.Right) || meets(Rows, part.Top, part.Bottom);
}

bool IsLabelOn(const PlanLabel& label, double aspect, const PlanRect& own, const PlanRect& shown) {
    PlanRect box = BoxOf(label, aspect);
    if (label.PointsAt) {
        box = {std::min(box.Left, label.PointsAt->X), std::min(box.Top, label.PointsAt->Y),
               std::max(box.Right, label.PointsAt->X), std::max(box.Bottom, label.PointsAt->Y)};
    }
    const bool meetsOwn = box.Left < own.Right && box.Right > own.Left && box.Top < own.Bottom &&
                          box.Bottom > own.Top;
    return meetsOwn || (box.Left >= shown.Left && box.Right <= shown.Right &&
                        box.Top >= shown.Top && box.Bottom <= shown.Bottom);
}

}  // namespace vendrel
