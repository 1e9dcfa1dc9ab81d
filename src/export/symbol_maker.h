#pragma once

#include <filesystem>

#include "support/program_folder.h"

namespace vendrel {

/// Draws the symbols afresh and writes them to the folder's `Data/Symbols.txt`, whole or not at
/// all; answers the file's path. Runs without a screen. Throws Error without the font and
/// FileError.
std::filesystem::path MakeSymbols(const ProgramFolder& folder);

}  // namespace vendrel
