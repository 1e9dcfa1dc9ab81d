#pragma once

#include <filesystem>
#include <vector>

namespace vendrel {

/// Joins PDF files page by page into one, with a bookmark for each; the same files give the same
/// bytes. Throws FileError.
void JoinPdfs(const std::vector<std::filesystem::path>& files, const std::filesystem::path& target);

}  // namespace vendrel
