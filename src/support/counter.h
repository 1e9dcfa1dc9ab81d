#pragma once

#include <string>

#include "support/error.h"

namespace vendrel {

/// The largest value of the counters that end up in the kit's files.
inline constexpr int kMaxCounter = 32767;

/// Raises a counter by one. Throws OverflowError past kMaxCounter: what there are too many of, and
/// what would make them fewer ("an easier difficulty").
inline void CountUp(int& counter, const char* what, const char* remedy) {
    if (counter >= kMaxCounter) {
        throw OverflowError(std::string("More than 32767 ") + what + ". Try " + remedy + ".");
    }
    ++counter;
}

}  // namespace vendrel
