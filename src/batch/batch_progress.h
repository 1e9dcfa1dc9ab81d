#pragma once

#include <chrono>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace vendrel {

/// How far a batch is.
struct BatchPace {
    std::size_t Done = 0;  // failed ones too
    std::size_t All = 0;
    std::size_t Failed = 0;
    double Seconds = 0;  // since the first one began
};

/// "[#####---------------] 12 of 48, 14.2 a minute, 3 min left, 1 failed"
[[nodiscard]] std::string PaceLine(const BatchPace& pace);

/// Tells a terminal or a log how a batch goes on.
class BatchProgress {
  public:
    BatchProgress(std::ostream& out, bool terminal, bool quiet, std::size_t all);
    ~BatchProgress();
    BatchProgress(const BatchProgress&) = delete;
    BatchProgress& operator=(const BatchProgress&) = delete;

    /// One order more; `sentence` says why it failed, empty when it was made.
    void Ended(std::string_view order, std::string_view sentence);
    /// Once in a while, so that time goes on.
    void Show();
    [[nodiscard]] const BatchPace& Pace() const { return pace_; }

  private:
    void ClearLine();

    std::ostream& out_;
    bool terminal_;
    bool quiet_;
    bool shown_ = false;
    BatchPace pace_;
    std::chrono::steady_clock::time_point began_ = std::chrono::steady_clock::now();
};

}  // namespace vendrel
