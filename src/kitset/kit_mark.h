#pragma once

#include <string>

#include "shell/workplace.h"

namespace vendrel {

/// Eight letters and digits that stand on everything printed of a kit: the same for the same
/// palette, grid and difficulty, another for any other. Letters that look like a digit are left
/// out.
[[nodiscard]] std::string KitMark(const Workplace& place);

}  // namespace vendrel
