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

/// The SHA-256 of bytes that come one after the other.
class RunningSha256 {
  public:
    RunningSha256();
    ~RunningSha256();
    RunningSha256(const RunningSha256&) = delete;
    RunningSha256& operator=(const RunningSha256&) = delete;

    void Add(std::span<const std::byte> bytes);
    /// As `sha256sum` prints it. Call it once.
    [[nodiscard]] std::string Hex();

  private:
    struct Context;
    std::unique_ptr<Context> context_;
};

/// The SHA-256 of a file as 64 small hexadecimal digits, as `sha256sum` prints it; empty when the
/// file cannot be read.
[[nodiscard]] std::string SumOfFile(const std::filesystem::path& file);

}  // namespace vendrel
