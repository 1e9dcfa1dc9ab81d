#pragma once

#include <QImage>
#include <QImageIOHandler>
#include <memory>
#include <string>

#include "convert/decoding_limits.h"
#include "convert/photo_decoder.h"
#include "export/photo_structure.h"
#include "support/error.h"

namespace vendrel {

/// A photo file as one of the decoders sees it. All operations throw Error with a sentence that
/// does not name the file, of which only its bytes are known here.
class PhotoSource {
  public:
    PhotoSource() = default;
    PhotoSource(const PhotoSource&) = delete;
    PhotoSource& operator=(const PhotoSource&) = delete;
    virtual ~PhotoSource() = default;

    /// As stored, both sides at least 1.
    [[nodiscard]] virtual BitmapSize Size() const = 0;
    /// What brings the stored picture upright.
    [[nodiscard]] virtual QImageIOHandler::Transformations Turn() const = 0;
    /// About the bytes that reading takes, beside those of the file.
    [[nodiscard]] virtual std::size_t MemoryFor(int divisor) const = 0;
    /// The picture: 1/divisor of its size where the decoder can do so while it reads, else whole.
    [[nodiscard]] virtual QImage Read(int divisor, const ReadProgress& progress) = 0;
};

[[noreturn]] inline void ThrowDamaged() {
    throw Error(
        "is damaged or cut short, so that the picture cannot be read. Copy the photo again from "
        "where it came from, or choose another one.");
}

[[noreturn]] inline void ThrowTooLargeForMemory() {
    throw Error("needs more memory to be read than a photo may take (" +
                std::to_string(kDecodingMegabytes) + " MB). Save it smaller, as JPEG.");
}

}  // namespace vendrel
