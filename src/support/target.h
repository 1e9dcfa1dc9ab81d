#pragma once

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

/// The file that a picture is written to, and who watches it grow; nobody when null.
struct Target {
    Target(std::filesystem::path file, FileWatcher* watcher = nullptr)
        : File(std::move(file)), Watcher(watcher) {}

    std::filesystem::path File;
    FileWatcher* Watcher;
};

}  // namespace vendrel
