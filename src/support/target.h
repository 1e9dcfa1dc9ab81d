#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <utility>

namespace vendrel {

/// Sees the bytes of a file on their way to it, in the order in which they stand there.
class ByteWatcher {
  public:
    ByteWatcher() = default;
    ByteWatcher(const ByteWatcher&) = delete;
    ByteWatcher& operator=(const ByteWatcher&) = delete;
    virtual ~ByteWatcher() = default;

    virtual void See(std::span<const std::byte> bytes) = 0;
};

/// The file that a picture is written to, and who watches; nobody when null. A writer that tells
/// its watcher of some bytes tells of all.
struct Target {
    Target(std::filesystem::path file, ByteWatcher* watcher = nullptr)
        : File(std::move(file)), Watcher(watcher) {}

    std::filesystem::path File;
    ByteWatcher* Watcher;
};

}  // namespace vendrel
