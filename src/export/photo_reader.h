#pragma once

#include <memory>
#include <span>

#include "convert/photo_decoder.h"
#include "export/photo_source.h"

namespace vendrel {

/// Reads one JPEG, PNG, WebP, TIFF, GIF (the first frame), HEIC, AVIF or bitmap of any kind, going
/// by what is in the file and not by its name. Needs no application object and no display. Meant
/// for a process of its own: a decoder may die of a damaged photo.
class PhotoReader {
  public:
    /// The bytes must live as long. Throws Error with a sentence that does not name the file, also
    /// when the picture is too large for the memory it may take.
    explicit PhotoReader(PhotoBytes file);

    /// Upright.
    [[nodiscard]] BitmapSize Size() const;
    /// Of what Read gives: a half, a quarter ... of a large photo.
    [[nodiscard]] BitmapSize PictureSize() const;
    /// Fills PictureSize() pixels with the photo, upright, in sRGB, on white where it is
    /// transparent. `progress` must not throw. Throws Error.
    void Read(std::span<Color> pixels, const ReadProgress& progress);

  private:
    void RequireMemory() const;
    [[nodiscard]] BitmapSize AsTurned(int divisor) const;

    std::unique_ptr<PhotoSource> source_;
    int divisor_ = 1;
};

}  // namespace vendrel
