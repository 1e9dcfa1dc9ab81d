#include "kitset/running_sum.h"

#include <utility>

#include "kitset/sha256.h"

namespace vendrel {

RunningSum::~RunningSum() {
    End();
}

void RunningSum::See(std::span<const std::byte> bytes) {
    Block block;
    {
        const std::lock_guard lock(mutex_);
        if (!spare_.empty()) {
            block = std::move(spare_.back());
            spare_.pop_back();
        }
    }
    block.assign(bytes.begin(), bytes.end());
    {
        const std::lock_guard lock(mutex_);
        seen_.push_back(std::move(block));
    }
    changed_.notify_one();
    if (!thread_.joinable()) {
        thread_ = std::thread([this] { Run(); });
    }
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

void RunningSum::Run() {
    Sha256Stream stream;
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ended_ || !seen_.empty(); });
        if (seen_.empty()) {
            break;
        }
        Block block = std::move(seen_.front());
        seen_.pop_front();
        lock.unlock();
        stream.Add(block);
        lock.lock();
        spare_.push_back(std::move(block));
    }
    sum_ = stream.Hex();
}

}  // namespace vendrel
