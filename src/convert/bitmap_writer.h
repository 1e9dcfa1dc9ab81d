#pragma once

#include <filesystem>

#include "convert/dib_section.h"
#include "support/surface.h"

namespace vendrel {

/// Prints 960 pixels at a hand's breadth over 17 centimetres.
inline constexpr int kPixelsPerMetre = 5500;

/// Writes a BMP file of 24 bits, uncompressed, rows bottom-up, header of 40 bytes. The file is
/// there whole or not at all. Throws FileError, OverflowError when the picture outgrows the format.
void WriteBitmap(const std::filesystem::path& file, const Surface& picture,
                 int pixelsPerMetre = kPixelsPerMetre);
void WriteBitmap(const std::filesystem::path& file, const cDIBSection& picture,
                 int pixelsPerMetre = kPixelsPerMetre);

}  // namespace vendrel
