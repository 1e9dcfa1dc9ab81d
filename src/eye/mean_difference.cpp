#include "eye/mean_difference.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "eye/seen_difference.h"

namespace vendrel {

// Pairs of colors come again and again, above all in what was painted: each is reckoned once.
double MeanDifference(std::span<const Color> one, std::span<const Color> other) {
    assert(one.size() == other.size());
    std::vector<std::uint64_t> pairs;
    pairs.reserve(one.size());
    for (std::size_t i = 0; i < one.size(); ++i) {
        pairs.push_back(static_cast<std::uint64_t>(one[i]) << 32U |
                        static_cast<std::uint32_t>(other[i]));
    }
    std::ranges::sort(pairs);
    double sum = 0;
    for (std::size_t i = 0; i < pairs.size();) {
        std::size_t next = i;
        while (next < pairs.size() && pairs[next] == pairs[i]) {
            ++next;
        }
        const Lab from = LabOf(static_cast<Color>(pairs[i] >> 32U));
        const Lab to = LabOf(static_cast<Color>(pairs[i] & 0xFFFFFFFFU));
        sum += static_cast<double>(next - i) * Ciede2000(from, to);
        i = next;
    }
    return pairs.empty() ? 0 : sum / static_cast<double>(pairs.size());
}

}  // namespace vendrel
