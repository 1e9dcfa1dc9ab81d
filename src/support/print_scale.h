#pragma once

#include <cmath>

namespace vendrel {

/// How large the pixels of a picture are on paper or canvas. One that was not made by a function
/// below prints nothing: its pixels are 0 mm wide.
class PrintScale {
  public:
    constexpr PrintScale() = default;

    [[nodiscard]] static constexpr PrintScale OfPixel(double millimeters) {
        return PrintScale(millimeters);
    }
    /// Of a picture `pixels` wide on a canvas of that width.
    [[nodiscard]] static constexpr PrintScale OfCanvas(double centimeters, int pixels) {
        return PrintScale(centimeters * 10 / pixels);
    }
    [[nodiscard]] static constexpr PrintScale PerMeter(int pixels) {
        return PrintScale(1000.0 / pixels);
    }

    [[nodiscard]] constexpr double MmPerPixel() const { return mm_; }
    [[nodiscard]] constexpr double MmPerStipple(int stippleSize) const { return Mm(stippleSize); }
    /// The nearest whole number, which is what bitmap files keep.
    [[nodiscard]] int PixelsPerMeter() const { return static_cast<int>(std::lround(1000 / mm_)); }

    /// Lengths and areas in pixels as they are printed, and the other way round.
    [[nodiscard]] constexpr double Mm(double pixels) const { return pixels * mm_; }
    [[nodiscard]] constexpr double Mm2(double pixels) const { return pixels * mm_ * mm_; }
    [[nodiscard]] constexpr double Pixels(double millimeters) const { return millimeters / mm_; }
    [[nodiscard]] constexpr double PixelsOfMm2(double millimeters2) const {
        return millimeters2 / (mm_ * mm_);
    }

    [[nodiscard]] constexpr PrintScale Enlarged(double times) const {
        return PrintScale(mm_ * times);
    }

  private:
    explicit constexpr PrintScale(double millimeters) : mm_(millimeters) {}

    double mm_ = 0;
};

/// Sheets and paintings: 960 pixels at a hand's breadth over 17 centimeters.
inline constexpr PrintScale kSheetScale = PrintScale::PerMeter(5500);

}  // namespace vendrel
