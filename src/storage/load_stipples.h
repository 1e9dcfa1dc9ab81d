#pragma once

#include "shell/workplace.h"

namespace vendrel {

/// Enables "Load Stipple Picture" exactly when a file is kept for the photo and the difficulty
/// chosen now. Loads nothing.
void CheckSavedStipples(Workplace& place);

/// Takes up the kept grid and its palette and draws it. The grid has the loaded photo's size
/// whatever size the file names (a message tells when they differ). Throws FileError and
/// FormatError; photo, palette and grid are then as before.
void LoadStipples_Click(Workplace& place);

}  // namespace vendrel
