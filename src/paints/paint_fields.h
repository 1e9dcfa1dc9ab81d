#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "shell/given_warnings.h"
#include "shell/records.h"
#include "shell/ui.h"

namespace vendrel {

/// The paints of a file, and sentences on what in it the painter may not have meant.
struct PaintFile {
    PaintList Paints;
    std::vector<std::string> Warnings;
};

/// Reads a count of 0..32767 and that many paints of six fields each: red, green, blue, paint
/// set, code, name. Rows beyond the count and paints that are listed twice are warned of. Throws
/// FileError or FormatError.
[[nodiscard]] PaintFile ReadPaintFile(const std::filesystem::path& file);

/// The same, warning the painter once.
[[nodiscard]] PaintList ReadPaints(GivenWarnings& given, Ui& screen,
                                   const std::filesystem::path& file);

}  // namespace vendrel
