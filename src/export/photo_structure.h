#pragma once

#include <cstdint>
#include <span>

namespace vendrel {

/// The bytes of a whole photo file.
using PhotoBytes = std::span<const std::uint8_t>;

/// True when a JPEG, a GIF's first frame or an uncompressed bitmap ends before its picture does.
/// Decoders fill the missing part with grey and say nothing. Other formats answer false: their
/// decoders notice.
[[nodiscard]] bool IsCutShort(PhotoBytes file);

/// The EXIF orientation, 1 (upright) to 8, that a PNG or WebP file carries; 1 when it has none.
/// The decoders know only that of JPEG and TIFF.
[[nodiscard]] int ChunkOrientation(PhotoBytes file);

}  // namespace vendrel
