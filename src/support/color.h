#pragma once

#include <cstdint>

namespace vendrel {

/// A packed colour: red + 256 * green + 65536 * blue, each channel 0..255.
using Color = std::int32_t;

/// What reading outside a surface gives: no colour, and never black.
inline constexpr Color kNoColor = -1;
/// Black means "not painted yet" to the clean-up.
inline constexpr Color kBlack = 0;
inline constexpr Color kWhite = 0xFFFFFF;

/// Packs three channels of 0..255.
[[nodiscard]] constexpr Color Rgb(int red, int green, int blue) {
    return red | (green << 8) | (blue << 16);
}
[[nodiscard]] constexpr int RedOf(Color color) {
    return color & 255;
}
[[nodiscard]] constexpr int GreenOf(Color color) {
    return (color >> 8) & 255;
}
[[nodiscard]] constexpr int BlueOf(Color color) {
    return (color >> 16) & 255;
}

/// Writes the three bytes of a pixel as bitmaps hold it: blue, green, red.
inline void StoreBgr(Color color, std::uint8_t* bytes) {
    bytes[0] = static_cast<std::uint8_t>(BlueOf(color));
    bytes[1] = static_cast<std::uint8_t>(GreenOf(color));
    bytes[2] = static_cast<std::uint8_t>(RedOf(color));
}

}  // namespace vendrel
