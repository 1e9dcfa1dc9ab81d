#include "plan/bleed.h"

namespace vendrel {
namespace {

// -1 at the near edge, 1 at the far one.
int SideOf(double at, double length) {
    constexpr double kHair = 1e-6;
    return at < kHair ? -1 : at > length - kHair ? 1 : 0;
}

void CarryOnFrom(const PlanPoint& end, const PlanPoint& size, const Bleed& bleed,
                 std::vector<BleedLine>& lines) {
    const double across = SideOf(end.X, size.X) * bleed.Across;
    const double down = SideOf(end.Y, size.Y) * bleed.Down;
    if (across != 0) {
        lines.push_back({end, {end.X + across, end.Y}});
    } else if (down != 0) {
        lines.push_back({end, {end.X, end.Y + down}});
    }
}

// The sides of a picture that stops short of the canvas on two of them.
void CarryOnSides(const PlanPoint& size, const Bleed& bleed, std::vector<BleedLine>& lines) {
    for (const double x : {0.0, size.X}) {
        for (const double y : {0.0, size.Y}) {
            lines.push_back({{x, y},
                             {x + (x > 0 ? bleed.Across : -bleed.Across),
                              y + (y > 0 ? bleed.Down : -bleed.Down)}});
        }
    }
}

}  // namespace

std::vector<BleedLine> CarryOn(const PlanLines& lines, const PlanPoint& size, const Bleed& bleed) {
    std::vector<BleedLine> carried;
    for (const PlanChain& chain : lines.Chains) {
        if (!chain.IsEdge() && !chain.IsLoop) {
            CarryOnFrom(chain.Points.front(), size, bleed, carried);
            CarryOnFrom(chain.Points.back(), size, bleed, carried);
        }
    }
    if ((bleed.Across > 0) != (bleed.Down > 0)) {
        CarryOnSides(size, bleed, carried);
    }
    return carried;
}

}  // namespace vendrel
