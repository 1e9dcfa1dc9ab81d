#include "canvas.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vendrel::portrait {

Frame FrameAround(const Path& points, double margin) {
    Frame frame{points[0].x, points[0].y, points[0].x, points[0].y};
    for (const Point& p : points) {
        frame.left = std::min(frame.left, p.x);
        frame.top = std::min(frame.top, p.y);
        frame.right = std::max(frame.right, p.x);
        frame.bottom = std::max(frame.bottom, p.y);
    }
    return {frame.left - margin, frame.top - margin, frame.right + margin, frame.bottom + margin};
}

Canvas::Canvas()
    : samples_(static_cast<std::size_t>(kColumns) * kRows),
      reach_(static_cast<std::size_t>(kColumns) * kRows) {}

void Canvas::Reach(Point from, Point to, double radius) {
    const Point edge = to - from;
    const double square = std::max(Dot(edge, edge), 1e-9);
    const Frame box = FrameAround({from, to}, radius + 1);
    for (int row = First(box.top); row < End(box.bottom, kRows); ++row) {
        for (int column = First(box.left); column < End(box.right, kColumns); ++column) {
            const Point toSample = Sample(column, row) - from;
            const double gap = Length(toSample - edge * Clamp01(Dot(toSample, edge) / square));
            // A hair thinner than a sample still shows, but faintly.
            const double reach = Ease(radius + 0.5, radius - 0.5, gap) * Clamp01(radius * 2);
            const std::size_t index = Index(column, row);
            if (reach <= reach_[index])
                continue;
            if (reach_[index] == 0)
                reached_.push_back(index);
            reach_[index] = reach;
        }
    }
}

// The whole stroke's reach is gathered first: overlapping segments must not cover twice.
void Canvas::Stroke(const Path& path, const Sweep& sweep) {
    const auto last = static_cast<double>(path.size() - 1);
    for (std::size_t i = 0; i + 1 < path.size(); ++i) {
        const double t = (static_cast<double>(i) + 0.5) / last;
        const double taper = std::pow(std::sin(t * std::numbers::pi), 0.6);
        Reach(path[i], path[i + 1], sweep.width / 2 * taper);
    }
    for (const std::size_t index : reached_) {
        Cover(index, {sweep.tint, sweep.cover * reach_[index]});
        reach_[index] = 0;
    }
    reached_.clear();
}

Tint Canvas::Pixel(int x, int y) const {
    Tint sum;
    for (int i = 0; i < kScale * kScale; ++i) {
        sum = sum + samples_[Index(x * kScale + i % kScale, y * kScale + i / kScale)];
    }
    return sum * (1.0 / (kScale * kScale));
}

std::vector<std::uint8_t> Canvas::Dry() const {
    std::vector<std::uint8_t> bytes;
    const auto toByte = [](double v) {
        return static_cast<std::uint8_t>(std::clamp(std::lround(v), 0L, 255L));
    };
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const Tint pixel = Pixel(x, y);
            for (const double channel : {pixel.r, pixel.g, pixel.b})
                bytes.push_back(toByte(channel));
        }
    }
    return bytes;
}

}  // namespace vendrel::portrait
