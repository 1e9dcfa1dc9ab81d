#include "support/whole_file.h"

#include <cerrno>
#include <random>
#include <string>
#include <system_error>

#include "support/error.h"

namespace vendrel {
namespace {

namespace fs = std::filesystem;

// A name of its own for every write, so that two programs saving the same kit do not write into
// one another's half-finished file.
fs::path NameBeside(const fs::path& target) {
    std::random_device random;
    fs::path name = target;
    // Piece by piece: GCC 12 warns of an overlap that is not there when "." heads a sum of strings.
    name += ".";
    name += std::to_string(random());
    name += ".part";
    return name;
}

}  // namespace

WholeFile::WholeFile(fs::path target) : target_(std::move(target)), beside_(NameBeside(target_)) {
    if (target_.has_parent_path()) {
        std::error_code failure;
        fs::create_directories(target_.parent_path(), failure);
        if (failure) {
            throw FileError(target_, "its folder cannot be created (" + failure.message() +
                                         "). Check that you may write there.");
        }
    }
    if (fs::is_directory(target_)) {
        throw FileError(target_, "a folder of that name is in the way. Move or rename it.");
    }
    file_.reset(std::fopen(beside_.c_str(), "wb"));
    if (!file_) {
        Fail();
    }
}

WholeFile::~WholeFile() {
    if (file_) {
        file_.reset();
        std::error_code ignored;
        fs::remove(beside_, ignored);
    }
}

void WholeFile::Fail() const {
    throw FileError(
        target_, "cannot be written (" + std::error_code(errno, std::generic_category()).message() +
                     "). The file was left as it was; check the disk's free space and that "
                     "you may write there.");
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

void WholeFile::Commit() {
    if (std::fflush(file_.get()) != 0) {
        Fail();
    }
    if (std::fclose(file_.release()) != 0) {
        std::error_code ignored;
        const int closeError = errno;
        fs::remove(beside_, ignored);
        errno = closeError;
        Fail();
    }
    std::error_code failure;
    fs::rename(beside_, target_, failure);
    if (failure) {
        std::error_code ignored;
        fs::remove(beside_, ignored);
        throw FileError(target_,
                        "cannot be replaced (" + failure.message() +
                            "). The new contents were not kept; check that you may write there.");
    }
}

void WriteWholeFile(const fs::path& target, std::string_view text) {
    WholeFile file(target);
    file.Write(text);
    file.Commit();
}

}  // namespace vendrel
