#pragma once

#include <QImage>
#include <array>
#include <cstdint>

#include "convert/photo_decoder.h"

namespace vendrel {

/// One channel of a picture of 9 to 16 bits: rows of 16-bit numbers in this machine's byte order.
struct DeepPlane {
    const std::uint8_t* Bytes = nullptr;
    int RowBytes = 0;
    int Bits = 0;
};

/// A picture of red, green and blue planes at 1/divisor of its size, each side at least 1, in eight
/// bits a channel: the mean of each block of divisor x divisor pixels. What is left over at the
/// right and below falls away. A side must not be smaller than the divisor, unless that is 1.
[[nodiscard]] QImage Shrunk(const std::array<DeepPlane, 3>& planes, BitmapSize size, int divisor);

}  // namespace vendrel
