#pragma once

#include "shell/catalogue.h"
#include "shell/given_warnings.h"
#include "shell/ui.h"
#include "support/program_folder.h"

namespace vendrel {

/// Reads Data/studiopaint.csv into MasterColors, in file order, and behind it every other catalogue
/// of the same layout in Data/catalogues, by name: of a paint that several have the first stands,
/// and one that cannot be read is warned of and left out. For studiopaint.csv it throws FileError
/// or FormatError and then leaves the catalogue as it was.
void LoadMasterColors(Catalogue& catalogue, GivenWarnings& given, Ui& screen,
                      const ProgramFolder& folder);

/// One unselected paint set per Mfg of the catalogue, in order of first appearance. A paint
/// without Mfg belongs to no set of others and adds a nameless set of its own.
void BuildPaintSets(Catalogue& catalogue);

}  // namespace vendrel
