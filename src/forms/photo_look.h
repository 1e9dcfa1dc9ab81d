#pragma once

#include <string>
#include <vector>

#include "convert/crop.h"
#include "intake/incoming_photo.h"
#include "shell/ui.h"
#include "support/surface.h"

namespace vendrel {

/// A photo of any format at its size, under the busy pointer and with progress. Throws FileError,
/// FormatError, Stop.
[[nodiscard]] Surface ReadAnyPhoto(Ui& screen, IncomingPhoto& photo);

/// A photo as it would come onto the sheet one way.
struct FitLook {
    PhotoFit Way = PhotoFit::Keep;
    Surface Picture;       // small, in the sheet's shape; the photo as it is when no sheet fits
    std::string Sentence;  // what the way does to it
};

/// A photo before it is chosen.
struct PhotoLook {
    FitLook AsItIs;             // when there is nothing to choose
    std::vector<FitLook> Ways;  // those open to a photo that does not fit by itself; else none
    bool HasCrop = false;       // some part of it fits a sheet
};

/// `photo` has pixels. `edge` is the length of the previews' longer side in pixels, at most.
[[nodiscard]] PhotoLook LookAt(const Surface& photo, const CropTarget& target, int edge);

}  // namespace vendrel
