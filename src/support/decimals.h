#pragma once

#include <array>
#include <charconv>
#include <string>

namespace vendrel {

/// A number with so many decimals, whatever the locale.
[[nodiscard]] inline std::string Decimals(double number, int places) {
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number,
                                   std::chars_format::fixed, places);
    return {text.data(), end.ptr};
}

}  // namespace vendrel
