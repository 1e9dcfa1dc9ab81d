#pragma once

#include <filesystem>
#include <system_error>

namespace vendrel {

/// Creates a folder and those above it that are missing; the new ones outlast a power cut. Answers
/// what went wrong.
[[nodiscard]] std::error_code MakeFolders(const std::filesystem::path& folder);

/// Brings a folder's names to the disk. Answers what went wrong; a folder that cannot be synced by
/// its nature is none of it.
[[nodiscard]] std::error_code SyncFolder(const std::filesystem::path& folder);

}  // namespace vendrel
