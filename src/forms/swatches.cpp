#include "forms/swatches.h"

#include <algorithm>

#include "support/rounding.h"

namespace vendrel {
namespace {

constexpr int kLargestSwatchTwips = 255;

int HowMany(int length, int size) {
    return RoundHalfEven(static_cast<double>(length) / size);
}

}  // namespace

int SwatchLayout::IndexAt(int x, int y) const {
    if (Size <= 0 || x < 0 || y < 0 || x >= Columns * Size) {
        return -1;
    }
    return y / Size * Columns + x / Size;
}

SwatchLayout LayOutSwatches(int boxWidth, int boxHeight, int count, int twipsPerPixel) {
    int size = RoundHalfEven(static_cast<double>(kLargestSwatchTwips) / twipsPerPixel);
    while (size > 1 && HowMany(boxWidth, size) * HowMany(boxHeight, size) < count) {
        --size;
    }
    size = std::max(size, 1);
    return {size, std::max(HowMany(boxWidth, size), 1)};
}

}  // namespace vendrel
