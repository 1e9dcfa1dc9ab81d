#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <string>
#include <thread>

#include "kitset/sha256.h"
#include "support/target.h"

namespace vendrel {

/// Takes the SHA-256 of a file while it is written, in a thread of its own. It reads the writer's
/// own blocks: to copy a sheet, or to read it back, takes nearly as long as to sum it up.
class RunningSum final : public FileWatcher {
  public:
    RunningSum() = default;
    ~RunningSum() override;

    void See(std::span<const std::byte> bytes, std::shared_ptr<const void> owner) override;
    void AwaitAllBut(std::size_t blocks) override;
    /// Whether a file is watched.
    [[nodiscard]] bool Saw() const { return thread_.joinable(); }
    /// The sum of the file, which is complete now, as `sha256sum` prints it. Call it once.
    [[nodiscard]] std::string Finish();

  private:
    void Run();
    void End();

    std::thread thread_;
    std::mutex mutex_;
    std::condition_variable came_;
    std::condition_variable went_;
    struct Block {
        std::span<const std::byte> Bytes;
        std::shared_ptr<const void> Owner;
    };
    std::deque<Block> blocks_;  // the first is the one being read
    bool ended_ = false;
    RunningSha256 sum_;
};

}  // namespace vendrel
