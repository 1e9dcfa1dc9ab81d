#pragma once

#include "convert/photo_decoder.h"

namespace vendrel {

/// Photos larger than this on a side are read at a half, a quarter ... of their size: far more
/// than a working picture shows, and little enough to hold.
inline constexpr int kMaxPhotoSide = 4096;

/// Reads JPEG, PNG, WebP, TIFF, GIF (the first frame) and bitmaps of every kind, going by what is
/// in the file and not by its name. Needs no application object and no display.
class PhotoReader final : public PhotoDecoder {
  public:
    [[nodiscard]] std::vector<std::string> Endings() const override;
    [[nodiscard]] BitmapSize Size(const std::filesystem::path& photo) const override;
    /// With a progress function the decoding runs beside the caller, who is called back about
    /// twenty times a second.
    [[nodiscard]] Surface Decode(const std::filesystem::path& photo,
                                 const ReadProgress& progress) const override;
};

}  // namespace vendrel
