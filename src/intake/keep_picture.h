#pragma once

#include <string>
#include <string_view>

#include "support/program_folder.h"
#include "support/surface.h"

namespace vendrel {

/// Writes a picture into Pictures as "<stem>.bmp", or "<stem> 2.bmp", "<stem> 3.bmp" ... when a
/// bitmap of that name is there; one with exactly this picture is used instead. Gives the file's
/// name. Throws FileError.
std::string KeepPicture(const ProgramFolder& folder, const std::string& stem,
                        const Surface& picture);

/// Keeps a part of a photo of the Pictures folder as "<its name up to the first dot> crop.bmp".
/// Gives the file's name.
std::string KeepCrop(const ProgramFolder& folder, std::string_view pictureFile,
                     const Surface& crop);
/// The same as "<name> top crop.bmp", so that neither name depends on which part was kept first; a
/// "<name> crop.bmp" that is this part already is used instead.
std::string KeepTopCrop(const ProgramFolder& folder, std::string_view pictureFile,
                        const Surface& crop);

}  // namespace vendrel
