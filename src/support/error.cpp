#include "support/error.h"

#include <cerrno>
#include <new>
#include <system_error>

namespace vendrel {

std::string Shown(const std::filesystem::path& file) {
    return file.lexically_normal().string();
}

std::string AdviceOn(const std::error_code& failure, const std::string& otherwise) {
    if (failure == std::errc::no_space_on_device) {
        return "There is no room on its disk: remove something there, or work in a folder "
               "elsewhere.";
    }
    if (failure == std::error_code(EDQUOT, std::generic_category())) {
        return "Your files fill all that you are allowed on its disk: remove some of them, or "
               "ask for more.";
    }
    if (failure == std::errc::read_only_file_system) {
        return "Its disk cannot be written to: work in a folder on another one.";
    }
    if (failure == std::errc::filename_too_long) {
        return "Choose a shorter name, or a folder nearer to the top.";
    }
    return otherwise;
}

FileError::FileError(const std::filesystem::path& file, const std::string& problem)
    : Error(Shown(file) + ": " + problem) {}

FormatError::FormatError(const std::filesystem::path& file, int line, const std::string& problem)
    : Error(Shown(file) + (line > 0 ? ", line " + std::to_string(line) : "") + ": " + problem) {}

std::string SentenceOf(const std::exception& failure, const std::string& subject) {
    const std::string lead = subject.empty() ? "" : subject + ": ";
    if (dynamic_cast<const Error*>(&failure) != nullptr) {
        return failure.what();
    }
    // A length that no list can have is asked for where memory would be short soon after.
    if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr ||
        dynamic_cast<const std::length_error*>(&failure) != nullptr) {
        return lead +
               "there is not enough memory for this. Try a smaller photo, or close other "
               "programs.";
    }
    if (const auto* disk = dynamic_cast<const std::filesystem::filesystem_error*>(&failure)) {
        const std::filesystem::path& file = disk->path1();
        return (file.empty() ? lead : Shown(file) + ": ") + "cannot be used (" +
               disk->code().message() + "). " +
               AdviceOn(disk->code(), "Check its name, and that you may read and write there.");
    }
    return lead + "the program failed (" + failure.what() +
           "). Nothing was written half; please tell its makers what you did.";
}

}  // namespace vendrel
