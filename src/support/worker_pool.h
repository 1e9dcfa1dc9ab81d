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

/// So many kits fit side by side into this machine's processors and free memory; 1 or more.
[[nodiscard]] int UsualJobs();

}  // namespace vendrel
