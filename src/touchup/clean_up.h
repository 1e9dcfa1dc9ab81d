#pragma once

#include <vector>

#include "touchup/edit_sheet.h"

namespace vendrel {

inline constexpr int kLowestCleanLevel = 2;
inline constexpr int kHighestCleanLevel = 8;

/// The stipples that a clean-up would repaint, row-major: those of which at least `level` (2..8)
/// of the eight neighbours carry one same other paint. All are judged on the sheet as it is now.
/// Where two paints would do, the one on more neighbours wins, then the lower index.
[[nodiscard]] std::vector<CellChange> PlanCleanUp(const EditSheet& sheet, int level);

}  // namespace vendrel
