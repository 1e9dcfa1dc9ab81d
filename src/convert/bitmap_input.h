#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <span>

#include "support/disk.h"

namespace vendrel {

/// A bitmap file open for reading. All operations throw FileError naming the file.
class BitmapInput {
  public:
    explicit BitmapInput(std::filesystem::path file);

    [[nodiscard]] const std::filesystem::path& File() const { return file_; }
    [[nodiscard]] std::uint64_t Size() const { return opened_.Size; }

    void Seek(std::uint64_t offset);
    /// Fills the span; a file that ends before it is full is an error.
    void Read(std::span<std::uint8_t> bytes);
    [[nodiscard]] int ReadByte() {
        const int byte = std::getc(opened_.Stream.get());
        if (byte == EOF) {
            FailShort();
        }
        return byte;
    }

  private:
    [[noreturn]] void FailShort() const;

    std::filesystem::path file_;
    RegularFile opened_;
};

}  // namespace vendrel
