#include "support/whole_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include "support/error.h"
#include "support/folders.h"
#include "support/leftovers.h"
#include "support/same_bytes.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kNewFile = 0666;  // less what the user's umask takes

std::error_code LastFailure() {
    return {errno, std::generic_category()};
}

// Before the work instead of after it: a file without a name learns only at its end that the one
// meant for it does not fit.
void RequireNameFits(const fs::path& target, const fs::path& folder) {
    const auto length = static_cast<long>(target.filename().native().size());
    const long most = pathconf(folder.c_str(), _PC_NAME_MAX);
    if (most > 0 && length > most) {
        throw FileError(target, "the name is too long: it has " + std::to_string(length) +
                                    " bytes, and a file's name can have " + std::to_string(most) +
                                    " here. Choose a shorter one.");
    }
}

// A folder is cleared of what nobody holds: the lock must be there before anybody else looks.
bool HoldNewFile(int file) {
    struct stat status {};
    (void)flock(file, LOCK_EX);
    return fstat(file, &status) == 0 && status.st_nlink > 0;
}

// Without a way back to the open file it could never get a name.
int OpenUnnamed(const fs::path& folder) {
    if (access("/proc/self/fd", X_OK) != 0) {
        return -1;
    }
    const int file = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, kNewFile);
    if (file >= 0) {
        (void)flock(file, LOCK_EX);
    }
    return file;
}

// Where renaming cannot refuse to replace, an empty file keeps the name until the real one comes.
int RenameToFreeName(const fs::path& from, const fs::path& to) {
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP) {
        return -1;
    }
    const int claim = open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFile);
    if (claim < 0) {
        return -1;
    }
    close(claim);
    return std::rename(from.c_str(), to.c_str());
}

}  // namespace

WholeFile::WholeFile(const Target& target, Lasting lasting)
    : target_(target.File), place_(target.Place), lasting_(lasting) {
    // The program has often made the folder itself just before, so the one above is synced too.
    oldest_ = NearestFolder(FolderAbove(Folder()));
    std::error_code failure;
    fs::create_directories(Folder(), failure);
    if (failure) {
        throw FileError(place_, "its folder cannot be created (" + failure.message() + "). " +
                                    AdviceOn(failure, "Check that you may write there."));
    }
    RequireNameFits(place_, Folder());
    if (fs::is_directory(target_, failure)) {
        throw FileError(place_, "a folder of that name is in the way. Move or rename it.");
    }
    Open();
}

WholeFile::~WholeFile() {
    if (file_ && !waiting_.empty()) {
        unlink(waiting_.c_str());
    }
}

void WholeFile::Open() {
    int opened = OpenUnnamed(Folder());
    if (opened < 0) {
        opened = OpenNamed();
    }
    if (opened >= 0) {
        file_.reset(fdopen(opened, "wb"));
    }
    if (!file_) {
        Fail();
    }
}

int WholeFile::OpenNamed() {
    while (true) {
        waiting_ = Folder() / NewWaitingName();
        const int opened = open(waiting_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, kNewFile);
        if (opened < 0 || HoldNewFile(opened)) {
            return opened;
        }
        close(opened);
    }
}

int WholeFile::Descriptor() const {
    return fileno(file_.get());
}

fs::path WholeFile::Folder() const {
    return target_.has_parent_path() ? target_.parent_path() : ".";
}

fs::path WholeFile::Way() const {
    return waiting_.empty() ? fs::path("/proc/self/fd/" + std::to_string(Descriptor())) : waiting_;
}

void WholeFile::Fail() const {
    const std::error_code failure = LastFailure();
    throw FileError(place_, "cannot be written (" + failure.message() +
                                "). The file was left as it was. " +
                                AdviceOn(failure, "Check that you may write there, and the disk."));
}

void WholeFile::FailToReplace() const {
    const std::error_code failure = LastFailure();
    throw FileError(place_, "cannot be replaced (" + failure.message() +
                                "). The new contents were not kept. " +
                                AdviceOn(failure, "Check that you may write there."));
}

void WholeFile::Write(std::string_view text) {
    if (std::fwrite(text.data(), 1, text.size(), file_.get()) != text.size()) {
        Fail();
    }
}

void WholeFile::Write(std::span<const std::byte> bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) {
        Fail();
    }
}

void WholeFile::Flush() {
    if (std::fflush(file_.get()) != 0) {
        Fail();
    }
}

// Some disks tell only a closing file that they are full; the lock needs ours to stay open.
void WholeFile::Complete() {
    Flush();
    const int other = dup(Descriptor());
    if (other >= 0 && close(other) != 0) {
        Fail();
    }
    if (lasting_ == Lasting::Synced && fsync(Descriptor()) != 0 && errno != EINVAL) {
        Fail();
    }
}

void WholeFile::Commit() {
    Complete();
    if (!waiting_.empty() || !TakeFreeName(target_)) {
        Replace();
    }
    Settle();
}

bool WholeFile::CommitNew(const fs::path& name) {
    RequireNameFits(name, Folder());
    Complete();
    if (!TakeFreeName(name)) {
        return false;
    }
    Settle();
    return true;
}

bool WholeFile::Holds(const fs::path& other) {
    Flush();
    return SameBytes(Way(), other);
}

bool WholeFile::TakeFreeName(const fs::path& name) {
    const int taken = waiting_.empty() ? linkat(AT_FDCWD, Way().c_str(), AT_FDCWD, name.c_str(),
                                                AT_SYMLINK_FOLLOW)
                                       : RenameToFreeName(waiting_, name);
    if (taken != 0 && errno != EEXIST) {
        Fail();
    }
    return taken == 0;
}

void WholeFile::Replace() {
    if (waiting_.empty()) {
        const fs::path waiting = Folder() / NewWaitingName();
        if (!TakeFreeName(waiting)) {
            Fail();
        }
        waiting_ = waiting;
    }
    if (std::rename(waiting_.c_str(), target_.c_str()) != 0) {
        FailToReplace();
    }
}

void WholeFile::Settle() {
    file_.reset();
    if (lasting_ == Lasting::Remade) {
        return;
    }
    if (const std::error_code failure = SyncFolders(Folder(), oldest_)) {
        errno = failure.value();
        Fail();
    }
}

void WriteWholeFile(const Target& target, std::string_view text, Lasting lasting) {
    WholeFile file(target, lasting);
    file.Write(text);
    file.Commit();
}

}  // namespace vendrel
