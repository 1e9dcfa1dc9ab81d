#pragma once

#include <filesystem>
#include <string>

#include "convert/crop.h"
#include "intake/incoming_photo.h"
#include "shell/ui.h"
#include "shell/work_settings.h"
#include "support/program_folder.h"

namespace vendrel {

/// The sheet that a photo would be painted on now.
[[nodiscard]] CropTarget TargetOf(const Ui& screen, const WorkSettings& settings);

/// Throws FileError when the shape of a photo, or of the part to be kept of it, leaves no whole
/// stipple, and FormatError when it is no photo at all: such a file should not take a name in
/// Pictures. One of no pixels passes.
void RequirePaintable(IncomingPhoto& photo, const CropTarget& target,
                      CropPart part = CropPart::Whole);

/// Whether a photo is a bitmap of the Pictures folder, where it can be used as it is.
[[nodiscard]] bool IsInPictures(const ProgramFolder& folder, const IncomingPhoto& photo);

/// Makes a photo one of the Pictures folder and gives its file name there. A plain bitmap is copied
/// from elsewhere; one that is there already is taken as it is. Others, and bitmaps that nothing
/// could be named after, are read and kept as a bitmap, under another name rather than over another
/// photo. Throws FileError when a different bitmap of that name is there, or when copying fails,
/// and FormatError.
[[nodiscard]] std::string TakeIntoPictures(const ProgramFolder& folder, IncomingPhoto& photo,
                                           const ReadProgress& progress = {});

/// Cuts that part from a photo of Pictures and keeps it as a photo of its own; the photo stays.
/// Gives the crop's file name, "<photo> crop.bmp", or "<photo> top crop.bmp" for a top that is not
/// the middle too, or the photo's own where there is nothing to cut off. Throws FileError,
/// FormatError.
[[nodiscard]] std::string CropInPictures(const ProgramFolder& folder,
                                         const std::string& pictureFile, const CropTarget& target,
                                         CropPart part);

}  // namespace vendrel
