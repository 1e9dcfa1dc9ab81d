#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "curve.h"
#include "tint.h"

namespace vendrel::portrait {

// The part of the picture a layer can touch, in picture pixels.
struct Frame {
    double left;
    double top;
    double right;
    double bottom;
};

// The frame around the points, `margin` wider on every side.
Frame FrameAround(const Path& points, double margin);

// One sweep of the brush: width in picture pixels, thinning towards both ends.
struct Sweep {
    double width;
    Tint tint;
    double cover;
};

// The picture while it is painted, with four samples to the pixel. All measures are in picture
// pixels.
class Canvas {
  public:
    static constexpr int kWidth = 720;
    static constexpr int kHeight = 960;
    static constexpr Frame kWhole{0, 0, kWidth, kHeight};

    Canvas();

    // Lays the dab that `layer(Point)` gives over every sample of the frame.
    template <class Layer>
    void Lay(const Frame& frame, Layer layer);

    void Stroke(const Path& path, const Sweep& sweep);

    // Rows from the top, red, green, blue per pixel.
    [[nodiscard]] std::vector<std::uint8_t> Dry() const;

  private:
    static constexpr int kScale = 2;
    static constexpr int kColumns = kWidth * kScale;
    static constexpr int kRows = kHeight * kScale;

    [[nodiscard]] static int First(double edge) {
        return std::max(0, static_cast<int>(std::floor(edge * kScale)));
    }
    [[nodiscard]] static int End(double edge, int limit) {
        return std::min(limit, static_cast<int>(std::ceil(edge * kScale)));
    }
    [[nodiscard]] static std::size_t Index(int column, int row) {
        return static_cast<std::size_t>(row) * kColumns + static_cast<std::size_t>(column);
    }
    [[nodiscard]] static Point Sample(int column, int row) {
        return {(column + 0.5) / kScale, (row + 0.5) / kScale};
    }
    [[nodiscard]] Tint Pixel(int x, int y) const;
    void Reach(Point from, Point to, double radius);
    void Cover(std::size_t index, const Dab& dab) {
        samples_[index] = Mix(samples_[index], dab.tint, Clamp01(dab.cover));
    }

    std::vector<Tint> samples_;
    // The stroke being made: its cover per sample, zero in between strokes, and where it is not
    // zero.
    std::vector<double> reach_;
    std::vector<std::size_t> reached_;
};

template <class Layer>
void Canvas::Lay(const Frame& frame, Layer layer) {
    for (int row = First(frame.top); row < End(frame.bottom, kRows); ++row) {
        for (int column = First(frame.left); column < End(frame.right, kColumns); ++column) {
            Cover(Index(column, row), layer(Sample(column, row)));
        }
    }
}

}  // namespace vendrel::portrait
