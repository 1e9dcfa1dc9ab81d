#pragma once

#include "shell/workplace.h"

namespace vendrel {

/// Enables "Load Stipple Picture" exactly when a file is kept for the photo and the difficulty
/// chosen now. Loads nothing.
void CheckSavedStipples(Workplace& place);

/// Takes up the kept grid and its palette and draws it. Where the file names another shape than the
/// loaded photo has, the photo takes that shape, and a message says so. Throws FileError and
/// FormatError, the latter with line and counts when stipples are missing; photo, palette and grid
/// are then as before.
void LoadStipples_Click(Workplace& place);

}  // namespace vendrel
