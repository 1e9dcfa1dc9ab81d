#pragma once

#include <vector>

#include "plan/outlines.h"

namespace vendrel::shapes {

using Rings = std::vector<PlanLine>;

[[nodiscard]] PlanLine Box(const PlanRect& rect);
/// A circle, as a ring of short steps.
[[nodiscard]] PlanLine Disc(double radius, PlanPoint centre = {});
/// The part of a circle from one angle to the other, in degrees clockwise from the right, closed by
/// a straight line.
[[nodiscard]] PlanLine Segment(double radius, double from, double to);
/// A star of that many points, the first at the top; a regular polygon when both radii agree.
[[nodiscard]] PlanLine Star(int points, double outer, double inner);
/// A heart that fills a box of that size.
[[nodiscard]] PlanLine Heart(double size);

/// Quarter turns clockwise.
[[nodiscard]] Rings Turned(Rings rings, int quarters);
/// Turned by any angle, in degrees clockwise.
[[nodiscard]] Rings Leaning(Rings rings, double degrees);
[[nodiscard]] Rings Moved(Rings rings, PlanPoint by);
/// As far from (0, 0) at the left as at the right, and above as below.
[[nodiscard]] Rings Centred(Rings rings);
/// Several shapes as one; where they overlap in pairs is empty.
[[nodiscard]] Rings Both(Rings one, const Rings& other);

}  // namespace vendrel::shapes
