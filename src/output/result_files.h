#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "shell/loaded_photo.h"
#include "shell/work_settings.h"
#include "support/program_folder.h"

namespace vendrel {

/// What all files of a kit are named after.
struct KitName {
    std::string Photo;       // up to its first dot
    std::string Difficulty;  // Easy, Medium or Difficult

    /// "beach Medium", as files in Results begin.
    [[nodiscard]] std::string Text() const { return Photo + " " + Difficulty; }
};

/// Of the photo and the difficulty chosen now.
[[nodiscard]] KitName KitNameOf(const LoadedPhoto& photo, const WorkSettings& settings);

/// "Results/<photo> <difficulty> <kind>", existing or not; the kind ends with the extension.
[[nodiscard]] std::filesystem::path ResultFile(const ProgramFolder& folder, const KitName& kit,
                                               std::string_view kind);

}  // namespace vendrel
