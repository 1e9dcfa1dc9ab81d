#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "shelf/shelf.h"
#include "support/program_folder.h"

namespace vendrel {

/// "Data/mypaints.csv", existing or not. It is the painter's own: none ships.
[[nodiscard]] std::filesystem::path ShelfPath(const ProgramFolder& folder);

/// The shelf of a table whose first row names its columns: set, name, code, ml left, pots, label,
/// red, green, blue (or measured, as #C08060), color, note and painted, in any order; others are
/// kept. All but the name may be missing. Throws FormatError with the line: for a number that may
/// be read in two ways, a row with more fields than there are columns, a paint that is listed twice
/// and labels that are alike.
[[nodiscard]] Shelf ParseShelf(std::string_view text, const std::filesystem::path& file);
/// The same of a file's text again.
[[nodiscard]] std::string FormatShelf(const Shelf& shelf);

/// Empty where there is no file. Throws FileError and FormatError.
[[nodiscard]] Shelf ReadShelf(const ProgramFolder& folder);

/// Changes the shelf as it is now on the disk, while every other program waits, and writes it whole
/// and synced, unless nothing changed. Answers what was written. Throws as ReadShelf, FileError,
/// and what `change` throws; the file is then as it was.
Shelf ChangeShelf(const ProgramFolder& folder, const std::function<void(Shelf&)>& change);

/// The same for a window that has changed a copy: see MergeShelves.
Shelf SaveShelf(const ProgramFolder& folder, const Shelf& before, const Shelf& after);

/// Throws Error for a shelf without a paint to paint with.
[[noreturn]] void RefuseEmptyShelf(const ProgramFolder& folder);

/// The template that carries what the painter owns to the conversion.
inline constexpr std::string_view kShelfTemplate = "My Paints (shelf)";
/// Writes it and answers its paints. Throws Error when nothing is owned, FileError.
PaintList WriteShelfTemplate(const ProgramFolder& folder, const Shelf& shelf);

}  // namespace vendrel
