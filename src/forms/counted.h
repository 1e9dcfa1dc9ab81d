#pragma once

#include <string>

#include "support/cell_pos.h"

namespace vendrel {

/// "1 area left", "7 areas left".
[[nodiscard]] inline std::string Counted(int count, const std::string& one,
                                         const std::string& many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

[[nodiscard]] inline std::string PlaceText(CellPos at) {
    return "column " + std::to_string(at.X) + ", row " + std::to_string(at.Y);
}

}  // namespace vendrel
