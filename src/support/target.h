#pragma once

#include <concepts>
#include <filesystem>
#include <utility>

namespace vendrel {

/// Follows a file that is written from its beginning to its end.
class FileWatcher {
  public:
    FileWatcher() = default;
    FileWatcher(const FileWatcher&) = delete;
    FileWatcher& operator=(const FileWatcher&) = delete;
    virtual ~FileWatcher() = default;

    /// `file` is the writer's own descriptor, which can be read as well.
    virtual void Grew(int file) = 0;
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
