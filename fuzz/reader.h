#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>

#include "support/program_folder.h"

namespace vendrel::fuzz {

using Bytes = std::span<const std::uint8_t>;

/// What each target defines: reads bytes that somebody else made. Errors are answers; every other
/// exception is a find.
void Read(Bytes bytes);
/// How many bytes of memory one byte of a file may cost at most, beside what every reading needs.
extern const std::size_t kMemoryPerByte;

[[nodiscard]] inline std::string_view TextOf(Bytes bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// A file that holds those bytes, in the folder of this process. Always the same file for a name.
std::filesystem::path FileWith(std::string_view name, std::string_view bytes);
/// The folder of this process as one that the program works in.
[[nodiscard]] const ProgramFolder& Folder();

/// Ends the run as a find unless that is so.
void Require(bool holds, const char* what);

}  // namespace vendrel::fuzz
