#pragma once

#include "export/photo_source.h"

namespace vendrel {

/// Whether the beginning of a file is that of a HEIC or AVIF photo.
[[nodiscard]] bool IsHeif(PhotoBytes file);

/// Such a photo; the bytes must live as long. Throws Error.
[[nodiscard]] std::unique_ptr<PhotoSource> OpenHeifPhoto(PhotoBytes file);

}  // namespace vendrel
