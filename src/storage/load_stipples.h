#pragma once

#include <filesystem>
#include <optional>

#include "shell/workplace.h"
#include "storage/stipple_file.h"

namespace vendrel {

/// What a stipple file holds, in the shape that its header names.
struct LoadedGrid {
    StippleHeader Header;
    PaintList Palette;
    Grid<StippleCell> Cells;
    std::optional<EditLayer> Edits;  // not asked for by all
};

/// Reads all of it but the edits. Throws FileError, and FormatError when stipples are missing or
/// more than a sheet of stipples of that size can have.
[[nodiscard]] LoadedGrid ReadGrid(const std::filesystem::path& path, int stippleTwips);

/// The same with the edits, where there are any.
[[nodiscard]] LoadedGrid ReadGridAndEdits(const std::filesystem::path& path, int stippleTwips);

/// Gives the loaded photo that many stipples; true when it had another shape until now. Its grid
/// must follow. Throws FileError and FormatError when the photo cannot be read anew; it is then as
/// before.
bool ShapePhotoBy(Workplace& place, CellPos stipples);

/// Enables "Load Stipple Picture" exactly when a file is kept for the photo and the difficulty
/// chosen now. Loads nothing.
void CheckSavedStipples(Workplace& place);

/// Takes up the kept grid and its palette and draws it. Where the file names another shape than the
/// loaded photo has, the photo takes that shape, and a message says so. Throws FileError and
/// FormatError, the latter with line and counts when stipples are missing; photo, palette and grid
/// are then as before.
void LoadStipples_Click(Workplace& place);

}  // namespace vendrel
