#include "support/fragile_disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <utility>

namespace {

vendrel::test::FragileDisk* watched = nullptr;

}  // namespace

// The program's own, taken before the system's.
extern "C" int fsync(int file) {
    const auto status = static_cast<int>(syscall(SYS_fsync, file));
    if (status == 0 && watched != nullptr) {
        watched->Synced(file);
    }
    return status;
}

namespace vendrel::test {

namespace fs = std::filesystem;

FragileDisk::FragileDisk(fs::path root) : root_(std::move(root)) {
    Keep(root_);
    for (const auto& entry : fs::recursive_directory_iterator(root_)) {
        Keep(entry.path());
    }
    watched = this;
}

FragileDisk::~FragileDisk() {
    watched = nullptr;
}

FragileDisk::Identity FragileDisk::IdentityOf(const fs::path& way) {
    struct statx status {};
    if (statx(AT_FDCWD, way.c_str(), 0, STATX_INO | STATX_BTIME, &status) != 0) {
        return {};
    }
    return std::to_string(status.stx_ino) + "/" + std::to_string(status.stx_btime.tv_sec) + "/" +
           std::to_string(status.stx_btime.tv_nsec);
}

void FragileDisk::Keep(const fs::path& way) {
    const Identity identity = IdentityOf(way);
    if (!fs::is_directory(way)) {
        std::ifstream in(way, std::ios::binary);
        bytes_[identity] = {std::istreambuf_iterator<char>(in), {}};
        return;
    }
    auto& names = names_[identity];
    names.clear();
    for (const auto& entry : fs::directory_iterator(way)) {
        names[entry.path().filename().string()] = IdentityOf(entry.path());
    }
}

void FragileDisk::Synced(int file) {
    const std::scoped_lock lock(syncing_);
    Keep("/proc/self/fd/" + std::to_string(file));
    if (AfterSync) {
        AfterSync();
    }
}

std::string FragileDisk::AfterCut(const fs::path& file) const {
    Identity at = IdentityOf(root_);
    for (const fs::path& part : file.lexically_relative(root_)) {
        const auto folder = names_.find(at);
        if (folder == names_.end() || !folder->second.contains(part.string())) {
            return {};
        }
        at = folder->second.at(part.string());
    }
    const auto bytes = bytes_.find(at);
    return bytes == bytes_.end() ? std::string() : bytes->second;
}

}  // namespace vendrel::test
