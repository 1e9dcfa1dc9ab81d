#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace vendrel {

using Sha256 = std::array<std::uint8_t, 32>;

[[nodiscard]] Sha256 Sha256Of(std::string_view bytes);

/// The SHA-256 of an open file, from its beginning, read bit by bit while it grows.
class FileSum {
  public:
    /// The file must be open for reading, and stay so. Nobody else's place in it is moved.
    explicit FileSum(int file);
    ~FileSum();
    FileSum(const FileSum&) = delete;
    FileSum& operator=(const FileSum&) = delete;

    /// Up to where the file ends now.
    void AddRest();
    /// As `sha256sum` prints it; empty when the file could not be read. Call it once.
    [[nodiscard]] std::string Hex();

  private:
    struct Context;
    std::unique_ptr<Context> context_;
};

/// The SHA-256 of a file as 64 small hexadecimal digits, as `sha256sum` prints it; empty when the
/// file cannot be read.
[[nodiscard]] std::string SumOfFile(const std::filesystem::path& file);

}  // namespace vendrel
