#include "support/same_bytes.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <system_error>

namespace vendrel {

namespace fs = std::filesystem;

bool SameBytes(const fs::path& a, const fs::path& b) {
    std::error_code failure;
    if (!fs::is_regular_file(a, failure) || !fs::is_regular_file(b, failure) ||
        fs::file_size(a, failure) != fs::file_size(b, failure)) {
        return false;
    }
    std::ifstream first(a, std::ios::binary);
    std::ifstream second(b, std::ios::binary);
    if (!first || !second) {
        return false;
    }
    // In blocks: a photo taken in again is compared on every run.
    std::array<char, 1 << 16> one{};
    std::array<char, 1 << 16> other{};
    while (first.read(one.data(), one.size()) || first.gcount() > 0) {
        second.read(other.data(), first.gcount());
        if (second.gcount() != first.gcount() ||
            !std::equal(one.begin(), one.begin() + first.gcount(), other.begin())) {
            return false;
        }
    }
    return !first.bad();
}

}  // namespace vendrel
