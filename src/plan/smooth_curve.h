#pragma once

#include "plan/outlines.h"

namespace vendrel {

/// How far a curve leaves the stairs that it stands for, in pixels.
struct CurveStrength {
    double Blur = 0;    // deviation of the bell that the stairs are blurred with; 0: none at all
    double Reach = 0;   // no point moves farther
    double Corner = 0;  // a corner whose arms are straight so far stays one
};

/// Whether a line's ends are to stay where they are, or are nothing but a place on a ring.
enum class LineEnds { Held, OnRing };

/// A line of level and upright steps as a curve of short straight pieces, its points on 64ths of a
/// pixel.
[[nodiscard]] PlanLine SmoothCurve(const PlanLine& stairs, LineEnds ends,
                                   const CurveStrength& strength);

}  // namespace vendrel
