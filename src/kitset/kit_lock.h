#pragma once

#include <filesystem>
#include <optional>
#include <utility>

namespace vendrel {

/// Keeps every other program out of a kit while it is written, by a lock on its waiting folder that
/// ends with the program at the latest.
class KitLock {
  public:
    /// Makes the folder when it is missing. Nothing while another program holds it. Throws
    /// FileError when the folder cannot be made.
    [[nodiscard]] static std::optional<KitLock> Try(const std::filesystem::path& folder);

    KitLock(KitLock&& other) noexcept : file_(std::exchange(other.file_, -1)) {}
    KitLock& operator=(KitLock&& other) noexcept {
        std::swap(file_, other.file_);
        return *this;
    }
    ~KitLock();

  private:
    explicit KitLock(int file) : file_(file) {}
    int file_;
};

}  // namespace vendrel
