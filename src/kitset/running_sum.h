#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "support/target.h"

namespace vendrel {

/// Takes the SHA-256 of a file while it is written, in a thread of its own: read again afterwards,
/// a sheet would cost half the time of making it.
class RunningSum final : public ByteWatcher {
  public:
    RunningSum() = default;
    ~RunningSum() override;

    void See(std::span<const std::byte> bytes) override;
    /// Whether anything was seen.
    [[nodiscard]] bool Saw() const { return thread_.joinable(); }
    /// The sum of all that was seen, as `sha256sum` prints it; nothing can be seen afterwards.
    [[nodiscard]] std::string Finish();

  private:
    using Block = std::vector<std::byte>;

    void Run();
    void End();

    std::thread thread_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Block> seen_;
    std::vector<Block> spare_;  // to be filled again: fresh memory costs more than the copy
    bool ended_ = false;
    std::string sum_;
};

}  // namespace vendrel
