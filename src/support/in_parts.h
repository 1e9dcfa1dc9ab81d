#pragma once

#include <algorithm>
#include <thread>
#include <vector>

namespace vendrel {

/// One of the parts that make up 0..count-1, in order.
struct Slice {
    int Index = 0;
    int First = 0;
    int End = 0;  // the first behind
};

inline constexpr int kMostParts = 4;

/// Calls `work(part)` for parts of 0..count-1, one on each of the machine's cores, and waits for
/// all; what is not worth a thread is one part. Parts must not touch each other's results, and
/// `work` throws nothing.
template <class Work>
void InParts(int count, const Work& work) {
    constexpr int kWorthAThread = 256;
    const int cores = static_cast<int>(std::thread::hardware_concurrency());
    const int parts = std::clamp(std::min(cores, count / kWorthAThread), 1, kMostParts);
    const auto part = [=](int index) {
        return Slice{index, count * index / parts, count * (index + 1) / parts};
    };
    std::vector<std::jthread> others;
    for (int index = 1; index < parts; ++index) {
        others.emplace_back([&work, own = part(index)] { work(own); });
    }
    work(part(0));
}

}  // namespace vendrel
