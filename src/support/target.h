#pragma once

#include <concepts>
#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <utility>

namespace vendrel {

/// Follows a file that is written from its beginning to its end.
class FileWatcher {
  public:
    FileWatcher() = default;
    FileWatcher(const FileWatcher&) = delete;
    FileWatcher& operator=(const FileWatcher&) = delete;
    virtual ~FileWatcher() = default;

    /// The next bytes of the file, which `owner` keeps. They may be read for a while: AwaitAllBut
    /// tells when they may change.
    virtual void See(std::span<const std::byte> bytes, std::shared_ptr<const void> owner) = 0;
    /// Waits until at most so many of the blocks handed over may still be read.
    virtual void AwaitAllBut(std::size_t blocks) = 0;
};

/// The file that something is written to, and who watches it grow; nobody when null.
struct Target {
    template <std::convertible_to<std::filesystem::path> Path>
    Target(Path&& file, FileWatcher* watcher = nullptr)
        : File(std::forward<Path>(file)), Place(File), Watcher(watcher) {}

    std::filesystem::path File;
    std::filesystem::path Place;  // where it ends up, which is what errors name
    FileWatcher* Watcher;
};

}  // namespace vendrel
