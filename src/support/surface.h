#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <vector>

#include "support/color.h"
#include "support/row_view.h"

namespace vendrel {

/// A raster of packed colours, row 0 at the top. Reading outside gives kNoColor, writing outside
/// does nothing.
class Surface {
  public:
    Surface() = default;
    /// Width and height in pixels, 0 or more.
    Surface(int width, int height, Color color = kBlack)
        : width_(width),
          height_(height),
          pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), color) {}

    [[nodiscard]] int Width() const { return width_; }
    [[nodiscard]] int Height() const { return height_; }
    [[nodiscard]] bool Empty() const { return pixels_.empty(); }
    [[nodiscard]] bool Holds(int x, int y) const {
        return x >= 0 && y >= 0 && x < width_ && y < height_;
    }

    [[nodiscard]] Color Get(int x, int y) const {
        return Holds(x, y) ? pixels_.data()[At(x, y)] : kNoColor;
    }
    void Set(int x, int y, Color color) {
        if (Holds(x, y)) {
            pixels_.data()[At(x, y)] = color;
        }
    }

    /// Row y as contiguous pixels; y must lie inside.
    [[nodiscard]] RowView<Color> Row(int y) { return {pixels_.data() + At(0, y), width_}; }
    [[nodiscard]] RowView<const Color> Row(int y) const {
        return {pixels_.data() + At(0, y), width_};
    }

    void Fill(Color color) { std::fill(pixels_.begin(), pixels_.end(), color); }
    /// Fills columns left..right-1 of rows top..bottom-1, cut to the surface.
    void FillRect(int left, int top, int right, int bottom, Color color);

    bool operator==(const Surface&) const = default;

  private:
    [[nodiscard]] std::size_t At(int x, int y) const {
        assert(y >= 0 && y < height_);
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x);
    }

    int width_ = 0;
    int height_ = 0;
    std::vector<Color> pixels_;
};

}  // namespace vendrel
