#pragma once

#include <string>

#include "convert/crop.h"
#include "intake/incoming_photo.h"
#include "shell/ui.h"
#include "support/surface.h"

namespace vendrel {

/// A photo of any format at its size, under the busy pointer and with progress. Throws FileError,
/// FormatError, Stop.
[[nodiscard]] Surface ReadAnyPhoto(Ui& screen, IncomingPhoto& photo);

/// A photo before it is chosen.
struct PhotoLook {
    Surface Picture;         // small, stretched as the sheet will be; as it is when no sheet fits
    std::string Stretch;     // the sentence on it
    bool CropHelps = false;  // it is stretched so much that it shows, and a part would not be
};

/// `photo` has pixels. `edge` is the length of the preview's longer side in pixels, at most.
[[nodiscard]] PhotoLook LookAt(const Surface& photo, const CropTarget& target, int edge);

}  // namespace vendrel
