#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace vendrel {

/// The bytes of a whole photo file.
using PhotoBytes = std::span<const std::uint8_t>;

/// True when a JPEG, a GIF's first frame or an uncompressed bitmap ends before its picture does.
/// Decoders fill the missing part with grey and say nothing. Other formats answer false: their
/// decoders notice.
[[nodiscard]] bool IsCutShort(PhotoBytes file);

/// What a JPEG's decoder holds of the whole picture before it gives the first row, in bytes: much
/// when it is stored in several passes (progressive), else 0.
[[nodiscard]] std::size_t JpegCoefficientBytes(PhotoBytes file);

/// Whether a PNG comes in seven passes, which only a decoder that holds the whole can read.
[[nodiscard]] bool IsInterlacedPng(PhotoBytes file);

/// The EXIF orientation, 1 (upright) to 8, that a PNG or WebP file carries; 1 when it has none.
/// The decoders know only that of JPEG and TIFF.
[[nodiscard]] int ChunkOrientation(PhotoBytes file);

}  // namespace vendrel
