#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace vendrel {

// Case of ASCII letters only: names of files and paints must compare alike on every system,
// whatever its language.

[[nodiscard]] constexpr char ToLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

[[nodiscard]] inline std::string ToLower(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](char c) { return ToLower(c); });
    return lower;
}

[[nodiscard]] inline bool SameIgnoringCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) { return ToLower(x) == ToLower(y); });
}

}  // namespace vendrel
