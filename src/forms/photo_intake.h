#pragma once

#include <filesystem>
#include <string>

#include "support/program_folder.h"

namespace vendrel {

/// Makes a photo one of the Pictures folder and gives its file name there. A photo from elsewhere
/// is copied; one that is there already is taken as it is. Throws FileError when a different photo
/// of that name is there, or when copying fails.
[[nodiscard]] std::string TakeIntoPictures(const ProgramFolder& folder,
                                           const std::filesystem::path& photo);

}  // namespace vendrel
