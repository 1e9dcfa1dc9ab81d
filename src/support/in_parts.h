#pragma once

#include <algorithm>
#include <thread>
#include <vector>

namespace vendrel {

/// Calls `work(first, end)` for parts that make up 0..count-1, one on each of the machine's cores,
/// at most four, and waits for all. Parts must not touch each other's results. `work` throws
/// nothing.
template <class Work>
void InParts(int count, const Work& work) {
    const int parts = std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1,
                                 std::min(4, 1 + count / 256));
    std::vector<std::jthread> others;
    for (int part = 1; part < parts; ++part) {
        others.emplace_back(work, count * part / parts, count * (part + 1) / parts);
    }
    work(0, count / parts);
}

}  // namespace vendrel
