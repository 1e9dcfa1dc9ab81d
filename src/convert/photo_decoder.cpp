#include "convert/photo_decoder.h"

#include "support/error.h"

namespace vendrel {
namespace {

[[noreturn]] void Refuse(const std::filesystem::path& photo) {
    throw FormatError(
        photo, 0,
        "JPEG, PNG, WebP, TIFF, GIF, HEIC, AVIF and unusual bitmaps need the build with "
        "windows; this build reads .bmp only. Save the photo as .bmp.");
}

}  // namespace

BitmapSize NoPhotoDecoder::Size(const std::filesystem::path& photo) const {
    Refuse(photo);
}

Surface NoPhotoDecoder::Decode(const std::filesystem::path& photo,
                               const ReadProgress& /*progress*/) const {
    Refuse(photo);
}

}  // namespace vendrel
