#pragma once

#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace vendrel {

/// What any exception has to say to the user: an Error its own sentence, everything else one about
/// what the program was doing, as in "aunt.bmp", empty when that is not known.
[[nodiscard]] std::string SentenceOf(const std::exception& failure,
                                     const std::string& subject = {});

/// A file's path as sentences name it: "Results/x.BMP" rather than "./Results/x.BMP".
[[nodiscard]] std::string Shown(const std::filesystem::path& file);

/// What to do about a disk that refused to write: full, read-only, beyond what the user may keep
/// there and a name too long have a sentence of their own, everything else is answered with
/// `otherwise`.
[[nodiscard]] std::string AdviceOn(const std::error_code& failure, const std::string& otherwise);

/// A failure with a sentence for the user: what went wrong and what to do.
class Error : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A file or folder that cannot be found, read, written or replaced.
class FileError : public Error {
  public:
    /// "<file>: <problem>", the problem ending with what to do.
    FileError(const std::filesystem::path& file, const std::string& problem);
};

/// A file that can be read but does not hold what it should.
class FormatError : public Error {
  public:
    /// "<file>, line <line>: <problem>"; line counts from 1, 0 leaves it out.
    FormatError(const std::filesystem::path& file, int line, const std::string& problem);
};

/// A counter that a photo drove past 32767.
class OverflowError : public Error {
  public:
    using Error::Error;
};

/// A command line or a request that makes no sense as it was given.
class UsageError : public Error {
  public:
    using Error::Error;
};

}  // namespace vendrel
