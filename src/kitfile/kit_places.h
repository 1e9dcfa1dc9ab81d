#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "support/program_folder.h"

namespace vendrel {

/// "Kits/<title>.kit", existing or not.
[[nodiscard]] std::filesystem::path KitPath(const ProgramFolder& folder, std::string_view title);

/// Whether a file goes by the name of a kit.
[[nodiscard]] bool IsKitName(const std::filesystem::path& file);

/// The kits of the program's folder, the one written last first. A missing folder has none.
[[nodiscard]] std::vector<std::filesystem::path> RecentKits(const ProgramFolder& folder,
                                                            std::size_t most);

/// The program's folder that a kit belongs to: the one whose Kits it lies in, with Pictures beside
/// it, or nothing.
[[nodiscard]] std::filesystem::path FolderOfKit(const std::filesystem::path& kit);

}  // namespace vendrel
