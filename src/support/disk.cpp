#include "support/disk.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "support/error.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void RefuseUnreadable(const fs::path& file, int number) {
    if (number == ENOENT || number == ENOTDIR) {
        throw FileError(file, "is not there. Check its name and folder.");
    }
    throw FileError(file, "cannot be opened for reading (" +
                              std::error_code(number, std::generic_category()).message() +
                              "). Check its name and that it may be read.");
}

void RequireRegular(const fs::path& file, mode_t mode) {
    if (!S_ISREG(mode)) {
        const char* kind = S_ISDIR(mode) ? "folder" : S_ISFIFO(mode) ? "pipe" : "device";
        throw FileError(file, "is a " + std::string(kind) +
                                  " where a file was expected. Choose a file, or move it away.");
    }
}

fs::file_status StatusOf(const fs::path& path) {
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    if (status.type() == fs::file_type::none) {
        throw FileError(path, "cannot be looked at (" + failure.message() +
                                  "). Check its name and that you may read its folder.");
    }
    return status;
}

}  // namespace

RegularFile OpenRegular(const fs::path& file) {
    // Opening alone sets some devices going, so they are looked at first.
    struct stat facts {};
    if (stat(file.c_str(), &facts) != 0) {
        RefuseUnreadable(file, errno);
    }
    RequireRegular(file, facts.st_mode);
    // A pipe may have taken its place by now, and would wait for somebody to write into it.
    const int handle = open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (handle < 0) {
        RefuseUnreadable(file, errno);
    }
    RegularFile opened{decltype(RegularFile::Stream)(fdopen(handle, "rb")), 0};
    if (!opened.Stream) {
        const int number = errno;
        close(handle);
        RefuseUnreadable(file, number);
    }
    if (fstat(handle, &facts) != 0) {
        RefuseUnreadable(file, errno);
    }
    RequireRegular(file, facts.st_mode);
    opened.Size = static_cast<std::uint64_t>(facts.st_size);
    return opened;
}

std::vector<fs::directory_entry> EntriesOf(const fs::path& folder, std::error_code& failure) {
    std::vector<fs::directory_entry> entries;
    fs::directory_iterator entry(folder, failure);
    for (; !failure && entry != fs::directory_iterator(); entry.increment(failure)) {
        entries.push_back(*entry);
    }
    return entries;
}

std::vector<fs::directory_entry> EntriesOf(const fs::path& folder) {
    std::error_code failure;
    std::vector<fs::directory_entry> entries = EntriesOf(folder, failure);
    if (failure && failure != std::errc::no_such_file_or_directory) {
        throw FileError(folder, "cannot be listed (" + failure.message() +
                                    "). Check that it is a folder you may read.");
    }
    return entries;
}

fs::path FullPath(const fs::path& path) {
    std::error_code failure;
    const fs::path full = fs::absolute(path, failure);
    return (failure ? path : full).lexically_normal();
}

bool Stands(const fs::path& path) {
    return fs::exists(StatusOf(path));
}

bool IsRegularFile(const fs::path& path) {
    return fs::is_regular_file(StatusOf(path));
}

bool IsFile(const fs::path& path) {
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

}  // namespace vendrel
