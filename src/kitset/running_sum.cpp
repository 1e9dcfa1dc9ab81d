#include "kitset/running_sum.h"

#include <utility>

namespace vendrel {

RunningSum::~RunningSum() {
    End();
}

void RunningSum::See(std::span<const std::byte> bytes, std::shared_ptr<const void> owner) {
    {
        const std::lock_guard lock(mutex_);
        blocks_.push_back({bytes, std::move(owner)});
    }
    came_.notify_one();
    if (!thread_.joinable()) {
        thread_ = std::thread([this] { Run(); });
    }
}

void RunningSum::AwaitAllBut(std::size_t blocks) {
    std::unique_lock lock(mutex_);
    went_.wait(lock, [&] { return blocks_.size() <= blocks; });
}

std::string RunningSum::Finish() {
    End();
    return sum_.Hex();
}

void RunningSum::End() {
    {
        const std::lock_guard lock(mutex_);
        ended_ = true;
    }
    came_.notify_one();
    if (thread_.joinable()) {
        thread_.join();
    }
}

void RunningSum::Run() {
    std::unique_lock lock(mutex_);
    for (;;) {
        came_.wait(lock, [this] { return ended_ || !blocks_.empty(); });
        if (blocks_.empty()) {
            return;
        }
        const std::span<const std::byte> block = blocks_.front().Bytes;
        lock.unlock();
        sum_.Add(block);
        lock.lock();
        blocks_.pop_front();
        went_.notify_all();
    }
}

}  // namespace vendrel
