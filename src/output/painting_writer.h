#pragma once

#include <filesystem>

#include "shell/workplace.h"

namespace vendrel {

/// Saves the work picture exactly as it stands as "Results/<photo> <difficulty> Painting.BMP" and
/// answers the file's path. Throws FileError.
std::filesystem::path PrintWorkform_Click(const Workplace& place);

}  // namespace vendrel
