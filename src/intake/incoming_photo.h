#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "convert/bitmap_header.h"
#include "convert/bitmap_input.h"
#include "convert/photo_decoder.h"
#include "support/surface.h"

namespace vendrel {

/// A photo on its way into the Pictures folder. A plain bitmap is opened once: what was looked at
/// is what is taken. Everything else is the decoder's, another format as well as a bitmap stored
/// from the top down. A bitmap that nothing could be named after ("holiday", ".bmp") is read here
/// and kept under another name, like a photo of another format.
class IncomingPhoto {
  public:
    /// Opens the photo and looks at its beginning. Throws FileError.
    IncomingPhoto(std::filesystem::path file, const PhotoDecoder& decoder);

    [[nodiscard]] const std::filesystem::path& File() const { return file_; }
    /// True when it can stand in Pictures as it is: a plain bitmap with a name to go by.
    [[nodiscard]] bool IsPlainBitmap() const { return plain_.has_value() && named_; }
    /// The name that it goes by in Pictures, unless that is taken; of one that stands there as it
    /// is as far as what is made from it is named after it.
    [[nodiscard]] std::string Stem() const;

    /// In pixels. A plain bitmap that answers is sound. Throws FileError, FormatError.
    [[nodiscard]] BitmapSize Size();
    /// Of a plain bitmap: whether it describes its colors by a profile or primaries of its own;
    /// they are taken as sRGB all the same. Throws FileError, FormatError.
    [[nodiscard]] bool HasOwnColors();
    /// The whole photo; a large one from a decoder is smaller than its size. Throws FileError,
    /// FormatError and what `progress` throws.
    [[nodiscard]] Surface Picture(const ReadProgress& progress = {});
    /// Copies a plain bitmap byte for byte. False when a file of that name is there, perhaps only
    /// since just now. Throws FileError.
    [[nodiscard]] bool CopyTo(const std::filesystem::path& newFile);

  private:
    const BitmapHeader& Header();

    std::filesystem::path file_;
    const PhotoDecoder& decoder_;
    bool named_;  // by a name that a bitmap of Pictures can have
    std::optional<BitmapInput> plain_;
    std::optional<BitmapHeader> header_;  // of a plain bitmap that was asked for it
    std::optional<BitmapSize> size_;
};

}  // namespace vendrel
