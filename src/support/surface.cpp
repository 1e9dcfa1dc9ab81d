#include "support/surface.h"

namespace vendrel {

void Surface::FillRect(int left, int top, int right, int bottom, Color color) {
    left = std::max(left, 0);
    right = std::min(right, width_);
    if (left >= right) {
        return;
    }
    for (int y = std::max(top, 0); y < std::min(bottom, height_); ++y) {
        std::fill_n(Row(y).begin() + left, right - left, color);
    }
}

}  // namespace vendrel
