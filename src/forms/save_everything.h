#pragma once

#include "plan/exporter.h"
#include "shell/workplace.h"

namespace vendrel {

/// Saves sheet, symbol reference, painting and color chart, then lists the files and offers to
/// open their folder. The painted picture on screen is the same before and after. Throws Error and
/// FileError; files saved before the failure are whole and stay.
void SaveEverything(const Workplace& place, const Exporter& exporter);

}  // namespace vendrel
