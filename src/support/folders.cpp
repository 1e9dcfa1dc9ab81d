#include "support/folders.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace vendrel {

namespace fs = std::filesystem;

fs::path FolderAbove(const fs::path& folder) {
    // "a/b/" is the folder b.
    const fs::path named = folder.has_filename() ? folder : folder.parent_path();
    return named.has_parent_path() ? named.parent_path() : ".";
}

fs::path NearestFolder(fs::path folder) {
    std::error_code failure;
    while (!fs::exists(folder, failure) && FolderAbove(folder) != folder) {
        folder = FolderAbove(folder);
    }
    return folder;
}

std::error_code SyncFolders(fs::path folder, const fs::path& last) {
    std::error_code failure = SyncFolder(folder);
    while (!failure && folder != last && FolderAbove(folder) != folder) {
        folder = FolderAbove(folder);
        failure = SyncFolder(folder);
    }
    return failure;
}

std::error_code SyncFolder(const fs::path& folder) {
    const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0) {
        return {};  // a folder that may be written to but not read
    }
    const int failure = fsync(opened) == 0 ? 0 : errno;
    close(opened);
    return {failure == EINVAL || failure == EROFS ? 0 : failure, std::generic_category()};
}

}  // namespace vendrel
