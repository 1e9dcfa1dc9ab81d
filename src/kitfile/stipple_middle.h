#pragma once

namespace vendrel {

/// The photo pixel in the middle of the stipple in that column, or row, from 1.
[[nodiscard]] constexpr int MiddleOf(int number, int stippleSize) {
    return 1 + (number - 1) * stippleSize + stippleSize / 2;
}

}  // namespace vendrel
