#include "plan/mark_places.h"

#include <algorithm>
#include <cmath>

namespace vendrel {
namespace {

double DistanceTo(const PlanRect& box, const PlanPoint& at) {
    const double x = std::max({box.Left - at.X, at.X - box.Right, 0.0});
    const double y = std::max({box.Top - at.Y, at.Y - box.Bottom, 0.0});
    return std::hypot(x, y);
}

double RoomAt(const PlanPoint& at, double radius, std::span<const PlanRect> symbols) {
    double room = radius;  // more is not better
    for (const PlanRect& symbol : symbols) {
        room = std::min(room, DistanceTo(symbol, at));
    }
    return room;
}

// Only those that a mark on the cut could touch at all.
std::vector<PlanRect> Near(const CutLine& cut, double radius, std::span<const PlanRect> symbols) {
    const PlanRect strip{
        std::min(cut.From.X, cut.To.X) - radius, std::min(cut.From.Y, cut.To.Y) - radius,
        std::max(cut.From.X, cut.To.X) + radius, std::max(cut.From.Y, cut.To.Y) + radius};
    std::vector<PlanRect> near;
    std::ranges::copy_if(symbols, std::back_inserter(near), [&strip](const PlanRect& box) {
        return box.Left < strip.Right && box.Right > strip.Left && box.Top < strip.Bottom &&
               box.Bottom > strip.Top;
    });
    return near;
}

}  // namespace

std::vector<PlanPoint> PlaceMarks(const CutLine& cut, double radius,
                                  std::span<const PlanRect> symbols) {
    constexpr int kPlaces = 200;  // along the cut
    constexpr int kEnd = 10;      // no mark nearer to the ends, nor to the middle
    const std::vector<PlanRect> near = Near(cut, radius, symbols);
    std::vector<PlanPoint> marks;
    for (const int wanted : {kPlaces / 5, kPlaces - kPlaces / 5}) {
        const int half = wanted < kPlaces / 2 ? 0 : kPlaces / 2;
        PlanPoint best;
        double bestRoom = -1;
        int bestWay = 0;
        for (int i = half + kEnd; i <= half + kPlaces / 2 - kEnd; ++i) {
            const double share = static_cast<double>(i) / kPlaces;
            const PlanPoint at{std::lerp(cut.From.X, cut.To.X, share),
                               std::lerp(cut.From.Y, cut.To.Y, share)};
            const double room = RoomAt(at, radius, near);
            const int way = std::abs(i - wanted);
            if (room > bestRoom || (room == bestRoom && way < bestWay)) {
                best = at;
                bestRoom = room;
                bestWay = way;
            }
        }
        marks.push_back(best);
    }
    return marks;
}

}  // namespace vendrel
