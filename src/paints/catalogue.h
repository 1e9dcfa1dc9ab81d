#pragma once

#include "shell/workplace.h"

namespace vendrel {

/// Reads Data/studiopaint.csv into MasterColors, in file order. Throws FileError or FormatError
/// and then leaves the catalogue as it was.
void LoadMasterColors(Workplace& place);

/// One unselected paint set per Mfg of the catalogue, in order of first appearance. A paint
/// without Mfg belongs to no set of others and adds a nameless set of its own.
void BuildPaintSets(Workplace& place);

}  // namespace vendrel
