#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>
#include <vector>

namespace vendrel {

/// A file open for reading.
struct RegularFile {
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    std::unique_ptr<std::FILE, Closer> Stream;
    std::uint64_t Size = 0;  // bytes, when it was opened
};

/// Opens a file for reading. Never waits: pipes, devices and folders are refused. Throws FileError
/// with what stands there and why it cannot be read.
[[nodiscard]] RegularFile OpenRegular(const std::filesystem::path& file);

/// True when something stands at the path. Throws FileError when nobody may look, which is not the
/// same as nothing being there.
[[nodiscard]] bool Stands(const std::filesystem::path& path);

/// The same for a plain file.
[[nodiscard]] bool IsRegularFile(const std::filesystem::path& path);
/// The same; what nobody may look at is none. Never throws.
[[nodiscard]] bool IsFile(const std::filesystem::path& path);

/// What a folder holds, in no order; as much as could be read when `failure` is set.
[[nodiscard]] std::vector<std::filesystem::directory_entry> EntriesOf(
    const std::filesystem::path& folder, std::error_code& failure);

/// The same; a missing folder holds nothing. Throws FileError when it cannot be read.
[[nodiscard]] std::vector<std::filesystem::directory_entry> EntriesOf(
    const std::filesystem::path& folder);

/// The path from the root, without "." and "..". Never throws: without a folder to start from it
/// stays as it is.
[[nodiscard]] std::filesystem::path FullPath(const std::filesystem::path& path);

}  // namespace vendrel
