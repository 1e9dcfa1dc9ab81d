#pragma once

#include <filesystem>

#include "output/cell_numbering.h"
#include "shell/workplace.h"

namespace vendrel {

/// Which pictures a numbering draws.
struct SheetKinds {
    bool Sheet = true;
    bool Reference = false;
};

/// The files of one numbering; the path of what was not asked for stays empty.
struct SavedSheets {
    std::filesystem::path Sheet;
    std::filesystem::path Reference;
    NumberingCounts Counts;
};

/// Numbers the painted picture once and saves borders and symbols on white as "Results/<photo>
/// <difficulty> PBS.BMP", and the same on the enlarged painting, in black or white, as "... Symbol
/// Reference.BMP". The work picture shows the painting again afterwards. Throws Error for more
/// paints than symbols or an unpainted picture, FileError, OverflowError.
SavedSheets WriteSheets(const Workplace& place, const SheetKinds& kinds);

/// A sheet that was saved.
struct SavedSheet {
    std::filesystem::path File;
    NumberingCounts Counts;
};

/// WriteSheets for the sheet alone.
SavedSheet WriteSheet(const Workplace& place);

/// The menu command: WriteSheet with a busy pointer.
SavedSheet PrintAll_Click(const Workplace& place);

/// The menu command for the symbol reference, with a busy pointer; answers its path.
std::filesystem::path SaveReference_Click(const Workplace& place);

}  // namespace vendrel
