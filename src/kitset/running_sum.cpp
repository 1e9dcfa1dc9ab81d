#include "kitset/running_sum.h"

#include <fcntl.h>
#include <unistd.h>

#include <utility>

#include "kitset/sha256.h"

namespace vendrel {

RunningSum::~RunningSum() {
    End();
    if (file_ >= 0) {
        close(file_);
    }
}

// Without a handle of its own it watches nothing, and the file is read when it is done.
void RunningSum::Grew(int file) {
    if (!thread_.joinable()) {
        file_ = fcntl(file, F_DUPFD_CLOEXEC, 0);
        if (file_ >= 0) {
            thread_ = std::thread([this] { Run(); });
        }
    }
    {
        const std::lock_guard lock(mutex_);
        grew_ = true;
    }
    changed_.notify_one();
}

std::string RunningSum::Finish() {
    End();
    return sum_;
}

void RunningSum::End() {
    {
        const std::lock_guard lock(mutex_);
        ended_ = true;
    }
    changed_.notify_one();
    if (thread_.joinable()) {
        thread_.join();
    }
}

bool RunningSum::AwaitMore() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return ended_ || grew_; });
    grew_ = false;
    return !ended_;
}

void RunningSum::Run() {
    FileSum sum(file_);
    while (AwaitMore()) {
        sum.AddRest();
    }
    sum.AddRest();
    sum_ = sum.Hex();
}

}  // namespace vendrel
