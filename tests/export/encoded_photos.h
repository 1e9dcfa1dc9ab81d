#pragma once

#include <libheif/heif.h>

#include <QImage>
#include <string>
#include <string_view>

namespace vendrel::test {

/// What a HEIC or AVIF file says beside its picture.
struct HeifNotes {
    heif_orientation Orientation = heif_orientation_normal;
    std::string Exif = {};
    std::string Profile = {};  // ICC
    int Primaries = 1;         // of the profile without ICC
    int Curve = 13;
    int Bits = 8;  // per channel, or 10
};

/// A picture as a file of "jpeg", "png", "webp", "tiff", "bmp", "gif" (128 greys), "heic" or
/// "avif", at the best quality.
[[nodiscard]] std::string Encoded(const QImage& image, std::string_view format);
[[nodiscard]] std::string EncodedHeif(const QImage& image, std::string_view format,
                                      const HeifNotes& notes);

}  // namespace vendrel::test
