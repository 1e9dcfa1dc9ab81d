#pragma once

#include <span>
#include <vector>

#include "eye/seen_table.h"
#include "shell/records.h"

namespace vendrel {

/// The colors of stipples, and how each differs to the eye from the paints of a palette, which
/// count from 0 here.
struct SeenStipples {
    DistinctColors Distinct;
    SeenTable Table;
};

[[nodiscard]] SeenStipples LookAt(std::span<const Color> stipples, const PaintList& palette);

/// The colors of a palette, as tables of seen differences count them.
[[nodiscard]] std::vector<Color> ColorsOf(const PaintList& paints);

}  // namespace vendrel
