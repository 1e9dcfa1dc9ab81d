#pragma once

#include "shell/ui.h"
#include "support/surface.h"
#include "support/target.h"

namespace vendrel {

/// Saves the work picture exactly as it stands, telling the painter. Throws FileError.
void WritePainting(Ui& screen, const Surface& painting, const Target& target);

}  // namespace vendrel
