#pragma once

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace vendrel {

/// A program to be run, and what came of it.
struct WorkerTask {
    std::size_t Index = 0;  // whatever the caller counts
    std::filesystem::path Program;
    std::vector<std::string> Words{};
};
struct WorkerResult {
    std::size_t Index = 0;
    int Status = 0;  // as shells have it: 128 and the signal for one that was killed
    std::string Out{};
    std::string Err{};
    double Seconds = 0;
    long PeakKilobytes = 0;  // of memory
};

/// Runs programs side by side, each in a group of its own, so that Ctrl+C reaches them by way of
/// this one alone; when this program dies they are told to end. For one thread.
class WorkerPool {
  public:
    WorkerPool() = default;
    /// Tells those that run to end and waits for them.
    ~WorkerPool();
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    /// Throws FileError when the program cannot be started.
    void Start(const WorkerTask& task);
    [[nodiscard]] std::size_t Running() const { return workers_.size(); }
    /// Waits until at least one ended, at most so long; answers those that did.
    [[nodiscard]] std::vector<WorkerResult> Await(int milliseconds);

  private:
    struct Worker {
        WorkerResult Result;
        pid_t Process = 0;
        int Out = -1;
        int Err = -1;
        double Started = 0;
    };

    [[nodiscard]] static bool Drain(int& from, std::string& to);
    [[nodiscard]] static WorkerResult Reap(Worker& worker);

    std::vector<Worker> workers_;
};

/// Work of several programs, so many at a time.
struct SideBySide {
    std::size_t Count = 0;
    std::size_t Jobs = 1;
    std::function<void(std::size_t index, WorkerPool& pool)> Start;  // may find nothing to do
    std::function<void(WorkerResult result)> End;
    std::function<void()> Pause;  // now and then; what it throws ends all
};
/// Does it; programs that still run are told to end when this throws.
void RunSideBySide(const SideBySide& work);

/// So many as were asked for; 0: as many kits as this machine's processors and free memory hold.
[[nodiscard]] std::size_t JobsOr(int asked);

}  // namespace vendrel
