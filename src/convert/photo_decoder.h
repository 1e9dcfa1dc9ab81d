#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "convert/bitmap_header.h"
#include "support/surface.h"

namespace vendrel {

/// Called now and then with 0..100 while a photo is read; what it throws ends the reading.
using ReadProgress = std::function<void(int percent)>;

/// Reads the photos that are no bitmaps: what cameras, telephones and browsers leave behind. The
/// decoders proper need a toolkit, so they stand behind this and are handed in from above.
class PhotoDecoder {
  public:
    PhotoDecoder() = default;
    PhotoDecoder(const PhotoDecoder&) = delete;
    PhotoDecoder& operator=(const PhotoDecoder&) = delete;
    virtual ~PhotoDecoder() = default;

    /// Endings of file names it reads, in lower case without the dot, sorted ("jpg", "png").
    [[nodiscard]] virtual std::vector<std::string> Endings() const = 0;
    /// The photo's full size as it is looked at (turned upright), without decoding it. Throws
    /// FileError, FormatError.
    [[nodiscard]] virtual BitmapSize Size(const std::filesystem::path& photo) const = 0;
    /// The photo upright, in sRGB, on white where it is transparent. A large one comes at a half,
    /// a quarter ... of its size. Throws FileError, FormatError.
    [[nodiscard]] virtual Surface Decode(const std::filesystem::path& photo,
                                         const ReadProgress& progress) const = 0;
};

/// The endings that a build with decoders reads.
inline constexpr std::array<std::string_view, 11> kPhotoEndings = {
    "avif", "bmp", "gif", "heic", "heif", "jpeg", "jpg", "png", "tif", "tiff", "webp"};

/// The decoder of a build without windows: refuses every photo with a sentence on what to do.
class NoPhotoDecoder final : public PhotoDecoder {
  public:
    [[nodiscard]] std::vector<std::string> Endings() const override { return {}; }
    [[nodiscard]] BitmapSize Size(const std::filesystem::path& photo) const override;
    [[nodiscard]] Surface Decode(const std::filesystem::path& photo,
                                 const ReadProgress& progress) const override;
};

}  // namespace vendrel
