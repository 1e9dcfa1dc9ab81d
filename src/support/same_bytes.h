#pragma once

#include <filesystem>

namespace vendrel {

/// Whether two files hold the same bytes; false when one cannot be read or is no file.
[[nodiscard]] bool SameBytes(const std::filesystem::path& a, const std::filesystem::path& b);

}  // namespace vendrel
