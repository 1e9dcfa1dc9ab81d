#pragma once

#include "shell/workplace.h"

namespace vendrel {

/// Start-up: selects the paint sets that data/paintlist.txt names and fills the palette with them
/// in the order of the file's lines. Without such a file, neither the folder's own nor a shipped
/// one, the first set is selected and the file written; the palette then stays empty until it is
/// next restored. So, with a warning, in a folder with a catalogue of its own in which no set has a
/// name of the shipped list. Throws FileError.
void LoadPaintList(Workplace& place);

/// Writes data/paintlist.txt: one selected paint set a line, in PaintSets order.
void SavePaintList(Workplace& place);

}  // namespace vendrel
