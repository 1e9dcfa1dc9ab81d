#pragma once

#include <string>

#include "shell/palette.h"
#include "shell/stipple_grid.h"
#include "shell/work_settings.h"

namespace vendrel {

/// Eight letters and digits that stand on everything printed of a kit: the same for the same
/// palette, grid and difficulty, another for any other. Letters that look like a digit are left
/// out.
[[nodiscard]] std::string KitMark(const Palette& palette, const StippleGrid& grid,
                                  const WorkSettings& settings);

}  // namespace vendrel
