#pragma once

#include <filesystem>
#include <memory>

namespace vendrel {

/// A file that one program at a time uses, by a lock beside it that goes with the program, however
/// it ends. Where the disk has no locks nobody is kept out.
class HeldFile {
  public:
    /// Null when a living program, this one included, holds the file. The file itself need not be
    /// there.
    [[nodiscard]] static std::shared_ptr<const HeldFile> Hold(const std::filesystem::path& file);
    ~HeldFile();
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

    [[nodiscard]] const std::filesystem::path& Path() const { return file_; }

  private:
    HeldFile(std::filesystem::path file, std::filesystem::path lock, int opened);

    std::filesystem::path file_;
    std::filesystem::path lock_;
    int opened_;
};

}  // namespace vendrel
