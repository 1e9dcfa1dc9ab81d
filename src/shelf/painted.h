#pragma once

#include <string>
#include <vector>

#include "shelf/shelf.h"

namespace vendrel {

/// How much of a paint a kit takes.
struct UsedPaint {
    PaintId Paint;
    double Ml = 0;
};

/// Takes what painting a kit used off the paints whose amount is known, never more than is left,
/// and notes it with each. Answers how many paints that were.
int TakePainted(Shelf& shelf, const std::string& kit, const std::vector<UsedPaint>& used);

/// Gives back what the last painting of that kit took. Throws Error when none is noted.
int UndoPainted(Shelf& shelf, const std::string& kit);

}  // namespace vendrel
