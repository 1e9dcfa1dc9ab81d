#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>

#include "convert/bitmap_header.h"
#include "convert/bitmap_input.h"
#include "support/color.h"

namespace vendrel {

/// Turns one stored row, not of run lengths, into colours. Throws FormatError naming `file` when a
/// pixel names a colour past the palette's end.
void UnpackRow(const BitmapHeader& header, const std::uint8_t* bytes, std::span<Color> row,
               const std::filesystem::path& file);

/// Hands every row of a picture stored as run lengths to `sink`, the lowest first. Pixels that the
/// runs leave out take the palette's first colour. Throws FileError or FormatError.
void ReadRunRows(BitmapInput& input, const BitmapHeader& header,
                 const std::function<void(int y, std::span<const Color> row)>& sink);

}  // namespace vendrel
