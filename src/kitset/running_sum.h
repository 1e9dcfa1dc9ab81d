#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

#include "support/target.h"

namespace vendrel {

/// Takes the SHA-256 of a file while it is written, in a thread of its own that reads what stands
/// there: the writer never waits for it and hands nothing over.
class RunningSum final : public FileWatcher {
  public:
    RunningSum() = default;
    ~RunningSum() override;

    void Grew(int file) override;
    /// Whether a file is watched.
    [[nodiscard]] bool Saw() const { return thread_.joinable(); }
    /// The sum of the file, which is complete now, as `sha256sum` prints it; empty when it cannot
    /// be read. Call it once.
    [[nodiscard]] std::string Finish();

  private:
    void Run();
    void End();
    // What the file has grown since the last look; false once it grows no more.
    [[nodiscard]] bool AwaitMore();

    std::thread thread_;
    std::mutex mutex_;
    std::condition_variable changed_;
    int file_ = -1;
    bool grew_ = false;
    bool ended_ = false;
    std::string sum_;
};

}  // namespace vendrel
