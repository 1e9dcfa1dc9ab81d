#pragma once

#include "output/symbol_set.h"
#include "support/program_folder.h"

namespace vendrel {

/// Draws the symbols afresh and writes them to the folder's `Data/Symbols.txt`, whole or not at
/// all. Runs without a screen. Throws Error without the font and
/// FileError.
MadeSymbols MakeSymbols(const ProgramFolder& folder);

}  // namespace vendrel
