#include "support/folders.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// "a/b/" is the folder b, and "b" lies in the folder the program was started in.
fs::path Above(const fs::path& folder) {
    const fs::path named = folder.has_filename() ? folder : folder.parent_path();
    return named.has_parent_path() ? named.parent_path() : ".";
}

}  // namespace

std::error_code MakeFolders(const fs::path& folder) {
    std::error_code failure;
    if (fs::is_directory(folder, failure)) {
        return {};
    }
    const fs::path above = Above(folder);
    if (above != folder) {
        if (const std::error_code aboveFailed = MakeFolders(above)) {
            return aboveFailed;
        }
    }
    return fs::create_directory(folder, failure) ? SyncFolder(above) : failure;
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
