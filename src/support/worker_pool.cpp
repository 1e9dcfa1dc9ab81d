#include "support/worker_pool.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <fstream>
#include <limits>
#include <system_error>
#include <thread>

#include "support/error.h"

namespace vendrel {
namespace {

// A kit of a large photo with its decoder beside it, at its peak.
constexpr long long kKilobytesPerKit = 700LL * 1024;

double Now() {
    const std::chrono::duration<double> now = std::chrono::steady_clock::now().time_since_epoch();
    return now.count();
}

struct Pipe {
    Pipe() {
        if (pipe2(Ends.data(), O_CLOEXEC) != 0) {
            throw Error("Another kit cannot be started (" +
                        std::error_code(errno, std::generic_category()).message() +
                        "). Take fewer --jobs.");
        }
    }
    ~Pipe() {
        close(Ends[0]);
        close(Ends[1]);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    // For the caller to keep; reading from it never waits.
    [[nodiscard]] int ReadEnd() const {
        const int kept = fcntl(Ends[0], F_DUPFD_CLOEXEC, 0);
        fcntl(kept, F_SETFL, O_NONBLOCK);
        return kept;
    }

    std::array<int, 2> Ends{-1, -1};
};

// In the child, between fork and exec: nothing here may take memory or a lock.
[[noreturn]] void Become(const char* program, char* const* words, const Pipe& out,
                         const Pipe& err) {
    constexpr int kNotStarted = 127;
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    const int nothing = open("/dev/null", O_RDONLY | O_CLOEXEC);
    dup2(nothing, STDIN_FILENO);
    dup2(out.Ends[1], STDOUT_FILENO);
    dup2(err.Ends[1], STDERR_FILENO);
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGHUP, SIG_DFL);
    execv(program, words);
    _exit(kNotStarted);
}

long long FreeKilobytes() {
    std::ifstream info("/proc/meminfo");
    std::string name;
    long long kilobytes = 0;
    std::string unit;
    while (info >> name >> kilobytes >> unit) {
        if (name == "MemAvailable:") {
            return kilobytes;
        }
    }
    return std::numeric_limits<long long>::max();
}

}  // namespace

WorkerPool::~WorkerPool() {
    for (const Worker& worker : workers_) {
        kill(worker.Process, SIGTERM);
    }
    for (Worker& worker : workers_) {
        close(worker.Out);
        close(worker.Err);
        waitpid(worker.Process, nullptr, 0);
    }
}

void WorkerPool::Start(const WorkerTask& task) {
    std::vector<std::string> words = {task.Program.string()};
    words.insert(words.end(), task.Words.begin(), task.Words.end());
    std::vector<char*> arguments;
    for (std::string& word : words) {
        arguments.push_back(word.data());
    }
    arguments.push_back(nullptr);
    const Pipe out;
    const Pipe err;
    const pid_t process = fork();
    if (process == 0) {
        Become(words.front().c_str(), arguments.data(), out, err);
    }
    if (process < 0) {
        throw FileError(task.Program,
                        "cannot be started (" +
                            std::error_code(errno, std::generic_category()).message() +
                            "). Take fewer --jobs.");
    }
    workers_.push_back({.Result = {.Index = task.Index},
                        .Process = process,
                        .Out = out.ReadEnd(),
                        .Err = err.ReadEnd(),
                        .Started = Now()});
}

// False at the end of what the worker says.
bool WorkerPool::Drain(int& from, std::string& to) {
    std::array<char, 4096> bytes{};
    while (from >= 0) {
        const ssize_t count = read(from, bytes.data(), bytes.size());
        if (count > 0) {
            to.append(bytes.data(), static_cast<std::size_t>(count));
        } else if (count < 0 && (errno == EAGAIN || errno == EINTR)) {
            return true;
        } else {
            close(from);
            from = -1;
        }
    }
    return false;
}

WorkerResult WorkerPool::Reap(Worker& worker) {
    constexpr int kSignalled = 128;
    int status = 0;
    rusage usage{};
    while (wait4(worker.Process, &status, 0, &usage) < 0 && errno == EINTR) {
    }
    worker.Result.Status = WIFEXITED(status) ? WEXITSTATUS(status) : kSignalled + WTERMSIG(status);
    worker.Result.PeakKilobytes = usage.ru_maxrss;
    worker.Result.Seconds = Now() - worker.Started;
    return std::move(worker.Result);
}

std::vector<WorkerResult> WorkerPool::Await(int milliseconds) {
    std::vector<pollfd> ends;
    for (const Worker& worker : workers_) {
        ends.push_back({worker.Out, POLLIN, 0});
        ends.push_back({worker.Err, POLLIN, 0});
    }
    (void)poll(ends.data(), ends.size(), milliseconds);
    std::vector<WorkerResult> ended;
    std::erase_if(workers_, [&](Worker& worker) {
        const bool speaks = Drain(worker.Out, worker.Result.Out);
        if (Drain(worker.Err, worker.Result.Err) || speaks) {
            return false;
        }
        ended.push_back(Reap(worker));
        return true;
    });
    return ended;
}

void RunSideBySide(const SideBySide& work) {
    constexpr int kLook = 100;  // milliseconds between two pauses
    WorkerPool pool;
    std::size_t next = 0;
    while (next < work.Count || pool.Running() > 0) {
        while (next < work.Count && pool.Running() < work.Jobs) {
            work.Start(next++, pool);
        }
        for (WorkerResult& result : pool.Await(kLook)) {
            work.End(std::move(result));
        }
        work.Pause();
    }
}

std::size_t JobsOr(int asked) {
    const auto cores = static_cast<long long>(std::max(1U, std::thread::hardware_concurrency()));
    return static_cast<std::size_t>(
        asked > 0 ? asked : std::clamp(FreeKilobytes() / kKilobytesPerKit, 1LL, cores));
}

}  // namespace vendrel
