#pragma once

#include <string>

#include "support/error.h"

namespace vendrel {

/// The largest value of the counters that end up in the kit's files.
inline constexpr int kMaxCounter = 32767;

/// Raises a counter by one. Throws OverflowError("<what> ...") past kMaxCounter.
inline void CountUp(int& counter, const char* what) {
    if (counter >= kMaxCounter) {
        throw OverflowError(std::string("More than 32767 ") + what +
                            ". Try an easier difficulty or more final paints.");
    }
    ++counter;
}

}  // namespace vendrel
