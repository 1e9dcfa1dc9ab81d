#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>

namespace vendrel {

/// Writes a file whole or not at all: the bytes go into a new file beside the target, which takes
/// the target's place on Commit. Without Commit the target stays as it was and nothing is left.
/// All operations throw FileError naming the target. Missing folders are created.
class WholeFile {
  public:
    explicit WholeFile(std::filesystem::path target);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    void Write(std::string_view text);
    void Write(std::span<const std::byte> bytes);
    void Commit();

  private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    [[noreturn]] void Fail() const;

    std::filesystem::path target_;
    std::filesystem::path beside_;
    std::unique_ptr<std::FILE, Closer> file_;
};

/// One call for a text that is ready.
void WriteWholeFile(const std::filesystem::path& target, std::string_view text);

}  // namespace vendrel
