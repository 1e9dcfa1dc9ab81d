#pragma once

#include <filesystem>
#include <string>

#include "convert/photo_decoder.h"
#include "kitfile/kit_file.h"
#include "shell/workplace.h"
#include "support/surface.h"

namespace vendrel {

/// The SHA-256 of a photo's pixels, whatever its file is: three bytes each, red, green and blue,
/// the lowest row first, as 64 small hexadecimal digits.
[[nodiscard]] std::string PixelSum(const Surface& photo);

/// A bitmap as a kit remembers it. Throws FileError, FormatError.
[[nodiscard]] KitPhoto KitPhotoOf(const std::filesystem::path& bitmap);

/// How a part is cut from a bitmap by its shape alone; not of CropPart::Whole. Throws FileError,
/// FormatError.
[[nodiscard]] KitCrop CropOf(const std::filesystem::path& bitmap, const CropTarget& target,
                             CropPart part);

/// Where the photo of a kit is.
struct FoundPhoto {
    std::filesystem::path File;
    std::string Problem;  // a sentence; empty when it is the kit's very photo
};

/// Looks in Pictures for the photo of a kit, by its name, and whether it is still the same.
[[nodiscard]] FoundPhoto FindKitPhoto(const ProgramFolder& folder, const KitPhoto& photo);

/// Brings a photo that is named in its stead into Pictures, under a name of its own where another
/// photo has its name, and answers its file there. Throws FileError when it is another photo, and
/// FileError, FormatError when it cannot be read.
[[nodiscard]] std::filesystem::path TakeKitPhoto(const ProgramFolder& folder,
                                                 const PhotoDecoder& decoder, const KitPhoto& photo,
                                                 const std::filesystem::path& named);

}  // namespace vendrel
