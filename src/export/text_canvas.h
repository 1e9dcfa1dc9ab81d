#pragma once

#include <memory>

#include "output/symbol_set.h"

namespace vendrel {

/// A canvas that prints characters with an installed font, one exact colour per pixel (nothing is
/// smoothed), strokes fitted to whole pixels. Needs a running QGuiApplication.
class TextCanvas : public Canvas {
  public:
    /// Size in pixels.
    TextCanvas(int width, int height);
    ~TextCanvas() override;

    [[nodiscard]] int Width() const override;
    [[nodiscard]] int Height() const override;
    void Clear(Color background) override;
    /// Takes Liberation Mono, which has the widths of Courier New, whatever `name` is asked for.
    /// Throws Error when it is not installed.
    void SetFont(std::string_view name, int points) override;
    void Print(char character, Color ink) override;
    [[nodiscard]] Color Get(int x, int y) const override;

  private:
    struct Raster;
    std::unique_ptr<Raster> raster_;
};

}  // namespace vendrel
