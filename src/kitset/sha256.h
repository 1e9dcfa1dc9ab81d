#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace vendrel {

using Sha256 = std::array<std::uint8_t, 32>;

[[nodiscard]] Sha256 Sha256Of(std::string_view bytes);

/// The SHA-256 of bytes that come in parts.
class Sha256Stream {
  public:
    Sha256Stream();
    ~Sha256Stream();
    Sha256Stream(const Sha256Stream&) = delete;
    Sha256Stream& operator=(const Sha256Stream&) = delete;

    void Add(std::span<const std::byte> bytes);
    /// As `sha256sum` prints it; starts anew.
    [[nodiscard]] std::string Hex();

  private:
    struct Context;
    std::unique_ptr<Context> context_;
};

/// The SHA-256 of a file as 64 small hexadecimal digits, as `sha256sum` prints it; empty when the
/// file cannot be read.
[[nodiscard]] std::string SumOfFile(const std::filesystem::path& file);

}  // namespace vendrel
