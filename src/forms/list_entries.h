#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace vendrel {

/// Whether a list box with these entries can have that one chosen; -1 is none.
[[nodiscard]] inline bool Holds(const std::vector<std::string>& list, int index) {
    return index >= 0 && static_cast<std::size_t>(index) < list.size();
}

}  // namespace vendrel
