#pragma once

#include <filesystem>
#include <string>

#include "support/program_folder.h"

namespace vendrel {

/// The file a painter means by a word of the command line: a path, or the name of a photo in
/// Pictures, the folder's own or the shipped one. Throws FileError when there is none.
[[nodiscard]] std::filesystem::path FindPhoto(const ProgramFolder& folder, const std::string& word);

}  // namespace vendrel
