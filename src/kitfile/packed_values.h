#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vendrel {

/// Whole numbers as text that a mail program would not break: four bytes each, the lowest first,
/// compressed (zlib) and in base64, in lines of 100 characters.
[[nodiscard]] std::vector<std::string> PackValues(std::span<const int> values);

/// Exactly `count` numbers again; nothing when the text is no such thing or holds another number of
/// them. Never takes more memory than the text and so many numbers need.
[[nodiscard]] std::optional<std::vector<int>> UnpackValues(const std::string& text,
                                                           std::size_t count);

}  // namespace vendrel
