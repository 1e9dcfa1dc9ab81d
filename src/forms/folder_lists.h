#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vendrel {

/// A place to start looking for photos from.
struct Drive {
    std::string Caption;
    std::filesystem::path Root;
};

/// The file system's root, the home folder and what is mounted for the user.
[[nodiscard]] std::vector<Drive> ListDrives();
/// The drive that holds `folder`, the one with the longest root; -1 for none.
[[nodiscard]] int DriveOf(const std::vector<Drive>& drives, const std::filesystem::path& folder);

/// Names of the subfolders, sorted, hidden ones left out; ".." stands first where there is a
/// parent. A folder that cannot be read lists nothing else.
[[nodiscard]] std::vector<std::string> ListFolders(const std::filesystem::path& folder);
/// Names of the photos of a folder, sorted, hidden ones left out: bitmaps, and files with one of
/// these endings (lower case, without the dot).
[[nodiscard]] std::vector<std::string> ListPhotos(const std::filesystem::path& folder,
                                                  const std::vector<std::string>& endings = {});

}  // namespace vendrel
