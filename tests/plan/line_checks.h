#pragma once

#include <gtest/gtest.h>

#include <cmath>

#include "plan/label_placement.h"
#include "plan/plan_lines.h"

namespace vendrel::test {

/// Whether two straight pieces have a point in common that is an end of neither.
inline bool Cross(const PlanPoint& a, const PlanPoint& b, const PlanPoint& c, const PlanPoint& d) {
    const auto turn = [](const PlanPoint& p, const PlanPoint& q, const PlanPoint& r) {
        return (q.X - p.X) * (r.Y - p.Y) - (q.Y - p.Y) * (r.X - p.X);
    };
    return turn(a, b, c) * turn(a, b, d) < 0 && turn(c, d, a) * turn(c, d, b) < 0;
}

/// By the borders of an area that a level way to the right meets.
inline bool IsInside(const PlanLines& lines, int area, const PlanPoint& at) {
    bool inside = false;
    for (const PlanRing& ring : lines.Rings[static_cast<std::size_t>(area)]) {
        const PlanLine points = PointsOf(lines, ring);
        for (std::size_t i = 0; i < points.size(); ++i) {
            const PlanPoint& p = points[i];
            const PlanPoint& q = points[(i + 1) % points.size()];
            if ((p.Y > at.Y) != (q.Y > at.Y) &&
                at.X < p.X + (at.Y - p.Y) * (q.X - p.X) / (q.Y - p.Y)) {
                inside = !inside;
            }
        }
    }
    return inside;
}

/// Holds lines against the areas that they were drawn around: every border once and all closed, no
/// two of them crossing, the picture shared out among the areas, none smaller by more than a tenth.
inline void ExpectPartition(const PlanLines& lines, const PaintedRegions& areas) {
    struct Piece {
        PlanPoint From;
        PlanPoint To;
    };
    std::vector<Piece> pieces;
    for (const PlanChain& chain : lines.Chains) {
        for (std::size_t i = 1; i < chain.Points.size(); ++i) {
            pieces.push_back({chain.Points[i - 1], chain.Points[i]});
        }
    }
    std::ranges::sort(pieces, {}, [](const Piece& p) { return std::min(p.From.X, p.To.X); });
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const double right = std::max(pieces[i].From.X, pieces[i].To.X);
        for (std::size_t j = i + 1;
             j < pieces.size() && std::min(pieces[j].From.X, pieces[j].To.X) <= right; ++j) {
            ASSERT_FALSE(Cross(pieces[i].From, pieces[i].To, pieces[j].From, pieces[j].To))
                << pieces[i].From.X << ' ' << pieces[i].From.Y;
        }
    }
    double all = 0;
    for (int area = 0; area < areas.Count(); ++area) {
        EXPECT_GE(SizeOfArea(lines, area), 0.9 * areas[area].Size) << area;
        all += SizeOfArea(lines, area);
        for (const PlanRing& ring : lines.Rings[static_cast<std::size_t>(area)]) {
            for (std::size_t i = 0; i < ring.size(); ++i) {
                const auto end = [&](const ChainWay& way, bool last) {
                    const PlanLine& points = lines.Chains[std::size_t(way.Chain)].Points;
                    return way.Reversed == last ? points.front() : points.back();
                };
                EXPECT_EQ(end(ring[i], true), end(ring[(i + 1) % ring.size()], false));
            }
        }
    }
    const double canvas = (areas.Ids.Across() + 1.0) * (areas.Ids.Down() + 1.0);
    EXPECT_NEAR(all, canvas, 1e-4 * canvas);
}

inline std::vector<PlanLabel> LabelsFor(const PaintedRegions& regions, const PlanLines& lines,
                                        const LabelRules& rules) {
    const auto boxes = FindRoomiestBoxes(
        regions, [&](int region) { return rules.Aspects[regions[region].Value]; });
    return PlaceLabels(regions, FindPlaces(regions, boxes, rules), lines, rules);
}

}  // namespace vendrel::test
