#pragma once

namespace vendrel {

/// How many twips (1/1440 inch) one screen pixel takes on each axis; 15 at 96 dots per inch.
struct TwipsPerPixel {
    int X = 15;
    int Y = 15;
};

/// A screen: its size in twips and its twips per pixel.
struct ScreenSize {
    int Width = 0;
    int Height = 0;
    TwipsPerPixel Twips;

    [[nodiscard]] static constexpr ScreenSize FromPixels(int width, int height,
                                                         TwipsPerPixel twips = {}) {
        return {width * twips.X, height * twips.Y, twips};
    }
};

/// The drawing board that kits are sized for. Never the screen a painter sits at: a kit begun on a
/// laptop is gone on with anywhere.
inline constexpr ScreenSize kDrawingBoard = ScreenSize::FromPixels(1920, 1080);

}  // namespace vendrel
