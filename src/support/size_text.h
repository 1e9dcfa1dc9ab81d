#pragma once

#include <string>

namespace vendrel {

/// "120 x 90".
[[nodiscard]] inline std::string SizeText(int across, int down) {
    return std::to_string(across) + " x " + std::to_string(down);
}

}  // namespace vendrel
