#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "convert/bitmap_input.h"
#include "support/color.h"

namespace vendrel {

/// How much of a file is read or written at once: one call for many rows, and the rows stay in the
/// cache.
inline constexpr std::size_t kBlockBytes = std::size_t{256} * 1024;

/// A picture's size in pixels, as its file's header has it: may be 0 or negative.
struct BitmapSize {
    int Width = 0;
    int Height = 0;
    bool operator==(const BitmapSize&) const = default;
};

enum class BitmapPacking { Plain, Rle8, Rle4, BitFields };

/// Where one channel sits in a pixel of 16 or 32 bits, and what its values mean in 0..255.
struct BitmapChannel {
    int Shift = 0;
    std::uint32_t Max = 0;
    std::array<std::uint8_t, 256> Level{};
};

/// What a bitmap file says about its pixels, checked: every row lies inside the file.
struct BitmapHeader {
    BitmapSize Size;  // both at least 1
    int BitsPerPixel = 0;
    BitmapPacking Packing = BitmapPacking::Plain;
    BitmapChannel Red;  // of 16 and 32 bits
    BitmapChannel Green;
    BitmapChannel Blue;
    std::array<Color, 256> Palette{};  // of 1, 4 and 8 bits; kNoColor past its end
    bool HasOwnColors = false;         // described by a profile or primaries, which are not used
    std::uint64_t PixelOffset = 0;
    std::size_t BytesPerRow = 0;  // as stored, padding included; not for run lengths
};

/// The size alone, signed, without judging it. Throws FileError or FormatError when the file is no
/// BMP of a known kind.
[[nodiscard]] BitmapSize ReadHeaderSize(BitmapInput& input);

/// Reads and checks everything before the pixels. Throws FileError or FormatError.
[[nodiscard]] BitmapHeader ReadBitmapHeader(BitmapInput& input);

}  // namespace vendrel
