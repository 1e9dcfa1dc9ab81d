#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "shell/records.h"

namespace vendrel {

// Palettes of other programs. A double quote in a name becomes an apostrophe, since templates
// cannot hold one.

/// Reads a palette by its ending: .gpl, or .csv with red, green, blue and name columns, in this
/// order or as a heading line names them. Throws FormatError naming file and line.
[[nodiscard]] PaintList ReadPaletteFile(const std::filesystem::path& file);

/// The two formats alone, from text; `file` is named in errors and its stem names the paints' set.
[[nodiscard]] PaintList ParseGplPalette(std::string_view text, const std::filesystem::path& file);
[[nodiscard]] PaintList ParseColorCsv(std::string_view text, const std::filesystem::path& file);

/// A .gpl palette of paints 1.. of the list, each named "set: name [code]".
[[nodiscard]] std::string GplText(std::string_view name, const PaintList& paints);

}  // namespace vendrel
