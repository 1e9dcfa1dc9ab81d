#pragma once

#include <filesystem>
#include <system_error>

namespace vendrel {

/// The folder a folder lies in; "." above a relative one.
[[nodiscard]] std::filesystem::path FolderAbove(const std::filesystem::path& folder);
/// A folder, or of those above it the nearest that is there.
[[nodiscard]] std::filesystem::path NearestFolder(std::filesystem::path folder);

/// Brings the names in a folder, and in those above it up to `last`, to the disk. Answers what went
/// wrong; a folder that cannot be synced by its nature is none of it.
[[nodiscard]] std::error_code SyncFolders(std::filesystem::path folder,
                                          const std::filesystem::path& last);
[[nodiscard]] std::error_code SyncFolder(const std::filesystem::path& folder);

}  // namespace vendrel
