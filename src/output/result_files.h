#pragma once

#include <filesystem>
#include <string_view>

#include "shell/workplace.h"

namespace vendrel {

/// "Results/<PictureName> <Easy|Medium|Difficult> <kind>.BMP" of the photo and the difficulty
/// chosen now, existing or not.
[[nodiscard]] std::filesystem::path ResultFile(const Workplace& place, std::string_view kind);

}  // namespace vendrel
