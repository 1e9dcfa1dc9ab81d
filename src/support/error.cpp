#include "support/error.h"

namespace vendrel {

FileError::FileError(const std::filesystem::path& file, const std::string& problem)
    : Error(file.string() + ": " + problem) {}

FormatError::FormatError(const std::filesystem::path& file, int line, const std::string& problem)
    : Error(file.string() + (line > 0 ? ", line " + std::to_string(line) : "") + ": " + problem) {}

}  // namespace vendrel
