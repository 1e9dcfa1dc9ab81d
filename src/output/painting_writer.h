#pragma once

#include "shell/workplace.h"
#include "support/target.h"

namespace vendrel {

/// Saves the work picture exactly as it stands. Throws FileError.
void WritePainting(const Workplace& place, const Target& target);

}  // namespace vendrel
