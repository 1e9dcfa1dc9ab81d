#pragma once

#include <string>
#include <string_view>

namespace vendrel {

// Case of letters in every script, by one table whatever the system's language: names of files and
// paints must compare alike everywhere. Bytes that are no UTF-8 stay as they are.

/// Small letters; a letter with several small ones (the Greek sigmas, the i with and without its
/// dot) gives one of them.
[[nodiscard]] std::string ToLower(std::string_view text);

[[nodiscard]] bool SameIgnoringCase(std::string_view a, std::string_view b);

}  // namespace vendrel
