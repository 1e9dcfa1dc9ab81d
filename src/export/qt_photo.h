#pragma once

#include "export/photo_source.h"

namespace vendrel {

/// The format's name if the beginning of a file is that of a JPEG, PNG, GIF, TIFF, WebP or bitmap;
/// else "".
[[nodiscard]] std::string QtFormatOf(PhotoBytes file);

/// Such a photo; the bytes must live as long. Throws Error.
[[nodiscard]] std::unique_ptr<PhotoSource> OpenQtPhoto(PhotoBytes file);

}  // namespace vendrel
