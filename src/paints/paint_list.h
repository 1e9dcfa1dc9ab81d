#pragma once

#include "shell/catalogue.h"
#include "shell/given_warnings.h"
#include "shell/palette.h"
#include "shell/ui.h"
#include "support/program_folder.h"

namespace vendrel {

/// Start-up: selects the paint sets that data/paintlist.txt names and fills the palette with them
/// in the order of the file's lines. Without such a file, neither the folder's own nor a shipped
/// one, the first set is selected and the file written; the palette then stays empty until it is
/// next restored. Throws FileError.
void LoadPaintList(Catalogue& catalogue, Palette& palette, GivenWarnings& given, Ui& screen,
                   const ProgramFolder& folder);

/// Writes data/paintlist.txt: one selected paint set a line, in PaintSets order.
void SavePaintList(const Catalogue& catalogue, const ProgramFolder& folder);

}  // namespace vendrel
