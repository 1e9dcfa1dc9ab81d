#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <mutex>
#include <string>

namespace vendrel::test {

/// A folder on a disk that may lose its power: knows what of it was synced, and takes everything
/// else away. A file's bytes last when the file is synced, its name when its folder is. One at a
/// time; it watches the whole program's fsync.
class FragileDisk {
  public:
    /// What the folder holds already is on the disk.
    explicit FragileDisk(std::filesystem::path root);
    ~FragileDisk();
    FragileDisk(const FragileDisk&) = delete;
    FragileDisk& operator=(const FragileDisk&) = delete;

    /// Called after every sync: the power might go just now.
    std::function<void()> AfterSync;

    /// A file as it is found after a cut; empty when it has no name, or no bytes, by then.
    [[nodiscard]] std::string AfterCut(const std::filesystem::path& file) const;

    void Synced(int file);

  private:
    void Keep(const std::filesystem::path& way);

    using Identity = std::string;  // a file of the same number may be another, made later
    static Identity IdentityOf(const std::filesystem::path& way);

    std::filesystem::path root_;
    std::mutex syncing_;  // files of a kit are synced side by side
    std::map<Identity, std::string> bytes_;
    std::map<Identity, std::map<std::string, Identity>> names_;
};

}  // namespace vendrel::test
