#include "kitset/kit_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "support/error.h"

namespace vendrel {
namespace {

int OpenFolder(const std::filesystem::path& folder) {
    for (;;) {
        std::error_code failure;
        std::filesystem::create_directories(folder, failure);
        const int file = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        if (file >= 0) {
            return file;
        }
        if (!failure && errno != ENOENT) {
            failure = {errno, std::generic_category()};
        }
        if (failure) {
            throw FileError(folder,
                            "cannot be created (" + failure.message() + "). " +
                                AdviceOn(failure, "Check that you may write to the folder above."));
        }
    }
}

// Whoever held the folder before has removed it when done.
bool StillThere(int file, const std::filesystem::path& folder) {
    struct stat held {};
    struct stat named {};
    return fstat(file, &held) == 0 && stat(folder.c_str(), &named) == 0 &&
           held.st_ino == named.st_ino && held.st_dev == named.st_dev;
}

}  // namespace

std::optional<KitLock> KitLock::Try(const std::filesystem::path& folder) {
    for (;;) {
        KitLock lock(OpenFolder(folder));
        // On a disk without locks everybody goes ahead, as there is no better way.
        if (flock(lock.file_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
            return std::nullopt;
        }
        if (StillThere(lock.file_, folder)) {
            return lock;
        }
    }
}

KitLock::~KitLock() {
    if (file_ >= 0) {
        close(file_);
    }
}

}  // namespace vendrel
