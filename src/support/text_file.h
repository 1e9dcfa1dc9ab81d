#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vendrel {

/// Reads a text file as UTF-8: a byte order mark is dropped, and bytes that are not UTF-8 are
/// taken for Windows-1252. Line ends stay as they are. Throws FileError.
[[nodiscard]] std::string ReadTextFile(const std::filesystem::path& file);

/// The same for text already in memory.
[[nodiscard]] std::string ToUtf8(std::string_view bytes);

/// The lines without their ends (LF or CR LF); a last line end adds no empty line.
[[nodiscard]] std::vector<std::string> SplitLines(std::string_view text);

}  // namespace vendrel
