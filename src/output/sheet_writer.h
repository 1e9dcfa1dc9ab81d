#pragma once

#include <filesystem>

#include "output/cell_numbering.h"
#include "shell/workplace.h"

namespace vendrel {

/// Sheet pixels per picture pixel: small stipples need a larger sheet for their symbols.
[[nodiscard]] constexpr int SheetCellSizeFor(int stippleSize) {
    return stippleSize == 8 ? 2 : stippleSize == 6 ? 3 : 4;
}

/// A sheet that was saved.
struct SavedSheet {
    std::filesystem::path File;
    NumberingCounts Counts;
};

/// Numbers the painted picture and saves borders and symbols on white as
/// "Results/<photo> <difficulty> PBS.BMP". The work picture shows the painting again afterwards.
/// Throws Error for more paints than symbols or an unpainted picture, FileError, OverflowError.
SavedSheet WriteSheet(const Workplace& place);

/// The menu command: WriteSheet with a busy pointer.
SavedSheet PrintAll_Click(const Workplace& place);

}  // namespace vendrel
