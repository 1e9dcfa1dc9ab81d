#pragma once

#include <cstddef>
#include <cstdint>

#include "support/color.h"

namespace vendrel {

/// The drawing surface of a 24-bit bitmap held elsewhere: bytes blue, green, red, rows bottom-up,
/// BytesPerScanLine apart. Does not own its bits. Writing outside does nothing.
class DibView {
  public:
    DibView() = default;
    DibView(std::uint8_t* bits, int width, int height, int bytesPerScanLine)
        : bits_(bits), width_(width), height_(height), bytesPerScanLine_(bytesPerScanLine) {}

    [[nodiscard]] bool Empty() const { return bits_ == nullptr; }
    [[nodiscard]] int Width() const { return width_; }
    [[nodiscard]] int Height() const { return height_; }
    [[nodiscard]] bool Holds(int x, int y) const {
        return x >= 0 && y >= 0 && x < width_ && y < height_;
    }

    [[nodiscard]] Color Get(int x, int y) const {
        if (!Holds(x, y)) {
            return kNoColor;
        }
        const std::uint8_t* p = At(x, y);
        return Rgb(p[2], p[1], p[0]);
    }
    void Set(int x, int y, Color color) const {
        if (!Holds(x, y)) {
            return;
        }
        StoreBgr(color, At(x, y));
    }

  private:
    [[nodiscard]] std::uint8_t* At(int x, int y) const {
        return bits_ + static_cast<std::ptrdiff_t>(height_ - 1 - y) * bytesPerScanLine_ +
               static_cast<std::ptrdiff_t>(x) * 3;
    }

    std::uint8_t* bits_ = nullptr;
    int width_ = 0;
    int height_ = 0;
    int bytesPerScanLine_ = 0;
};

}  // namespace vendrel
