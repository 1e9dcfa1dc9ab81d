#include "support/held_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "support/leftovers.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// A former holder takes the lock's name away; a lock without its name keeps nobody out.
bool HasName(int opened, const fs::path& lock) {
    struct stat ours {};
    struct stat named {};
    return fstat(opened, &ours) == 0 && stat(lock.c_str(), &named) == 0 &&
           ours.st_ino == named.st_ino && ours.st_dev == named.st_dev;
}

}  // namespace

HeldFile::HeldFile(fs::path file, fs::path lock, int opened)
    : file_(std::move(file)), lock_(std::move(lock)), opened_(opened) {}

std::shared_ptr<const HeldFile> HeldFile::Hold(const fs::path& file) {
    const fs::path lock = file.parent_path() / LockName(file.filename().string());
    while (true) {
        const int opened = open(lock.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
        if (opened >= 0 && flock(opened, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
            close(opened);
            return nullptr;
        }
        if (opened < 0 || HasName(opened, lock)) {
            return std::shared_ptr<const HeldFile>(new HeldFile(file, lock, opened));
        }
        close(opened);
    }
}

HeldFile::~HeldFile() {
    if (opened_ >= 0) {
        unlink(lock_.c_str());
        close(opened_);
    }
}

}  // namespace vendrel
