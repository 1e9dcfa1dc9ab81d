#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "convert/crop.h"
#include "convert/photo_decoder.h"
#include "support/program_folder.h"

namespace vendrel {

/// Throws FileError when the shape of a photo, or of the part to be kept of it, leaves no whole
/// stipple, and FormatError when it is no photo at all: such a file should not take a name in
/// Pictures. One of no pixels passes.
void RequirePaintable(const std::filesystem::path& photo, const PhotoDecoder& decoder,
                      const CropTarget& target, CropPart part = CropPart::Whole);

/// What follows a photo's name in the longest name of a result.
inline constexpr std::string_view kLongestResult = " Difficult Symbol Reference.BMP";

/// Throws FileError when what is made of a bitmap could not be named: its name up to the first dot
/// and `longest` behind it must fit on a disk.
void RequireResultNames(const std::filesystem::path& photo, std::string_view longest);

/// Whether a photo is a bitmap of the Pictures folder, where it can be used as it is.
[[nodiscard]] bool IsInPictures(const ProgramFolder& folder, const std::filesystem::path& photo);

/// Makes a photo one of the Pictures folder and gives its file name there. A photo from elsewhere
/// is copied; one that is there already is taken as it is. Throws FileError when a different photo
/// of that name is there, or when copying fails.
[[nodiscard]] std::string TakeIntoPictures(const ProgramFolder& folder,
                                           const std::filesystem::path& photo);

/// The same for a photo of any format: one that the bitmap reader cannot read is decoded and kept
/// as a bitmap, under another name rather than over another photo. Also throws FormatError.
[[nodiscard]] std::string TakeIntoPictures(const ProgramFolder& folder,
                                           const std::filesystem::path& photo,
                                           const PhotoDecoder& decoder,
                                           const ReadProgress& progress = {});

/// Cuts that part from a photo of Pictures and keeps it as a photo of its own; the photo stays.
/// Gives the crop's file name, or the photo's where there is nothing to cut off. Throws FileError,
/// FormatError.
[[nodiscard]] std::string CropInPictures(const ProgramFolder& folder,
                                         const std::string& pictureFile, const CropTarget& target,
                                         CropPart part);

}  // namespace vendrel
