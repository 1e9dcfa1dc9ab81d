#pragma once

#include "plan/exporter.h"
#include "shell/workplace.h"

namespace vendrel {

/// Saves what belongs to everything (see Output) as one set, then lists the files and offers to
/// open their folder. The painted picture on screen is the same before and after. Throws Error and
/// FileError; then what stood in Results stays as it was.
void SaveEverything(Workplace& place, const Exporter& exporter);

}  // namespace vendrel
