#include "export/deep_planes.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>

namespace vendrel {
namespace {

std::uint16_t At(const DeepPlane& plane, int x, int y) {
    std::uint16_t value = 0;
    std::memcpy(&value, plane.Bytes + std::ptrdiff_t{plane.RowBytes} * y + std::ptrdiff_t{2} * x,
                sizeof value);
    return value;
}

uchar MeanOfBlock(const DeepPlane& plane, int left, int top, int side) {
    std::uint64_t sum = 0;
    for (int y = top; y < top + side; ++y) {
        for (int x = left; x < left + side; ++x) {
            sum += At(plane, x, y);
        }
    }
    const auto pixels = static_cast<std::uint64_t>(side) * static_cast<std::uint64_t>(side);
    return static_cast<uchar>(std::min<std::uint64_t>(sum / pixels >> (plane.Bits - 8), 255));
}

}  // namespace

QImage Shrunk(const std::array<DeepPlane, 3>& planes, BitmapSize size, int divisor) {
    QImage image(std::max(1, size.Width / divisor), std::max(1, size.Height / divisor),
                 QImage::Format_RGB888);
    if (image.isNull()) {
        throw std::bad_alloc();
    }
    for (int y = 0; y < image.height(); ++y) {
        uchar* to = image.scanLine(y);
        for (int x = 0; x < image.width(); ++x) {
            for (const DeepPlane& plane : planes) {
                *to++ = MeanOfBlock(plane, x * divisor, y * divisor, divisor);
            }
        }
    }
    return image;
}

}  // namespace vendrel
