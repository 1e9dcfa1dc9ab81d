#pragma once

#include <filesystem>
#include <string>

#include "convert/photo_decoder.h"
#include "support/program_folder.h"
#include "support/surface.h"

namespace vendrel {

/// What a picture from the clipboard is called.
inline constexpr const char* kPastedStem = "Pasted picture";

/// True when the workflow's own bitmap reader cannot be meant: another format, or a bitmap stored
/// from the top down. Throws FileError.
[[nodiscard]] bool NeedsDecoder(const std::filesystem::path& photo);

/// The name under which a photo is kept, without an ending: its own, with "-" for every "." inside,
/// since everything made from a photo is named after what stands before its first ".".
[[nodiscard]] std::string PictureStem(const std::filesystem::path& photo);

/// Writes a picture into Pictures as "<stem>.bmp", or "<stem> 2.bmp", "<stem> 3.bmp" ... when a
/// bitmap of that name is there; one with exactly this picture is used instead. Gives the file's
/// name. Throws FileError.
std::string KeepPicture(const ProgramFolder& folder, const std::string& stem,
                        const Surface& picture);

/// Decodes a photo and keeps it under its name. Gives the file's name in Pictures. Throws
/// FileError, FormatError.
std::string TakeInPhoto(const ProgramFolder& folder, const std::filesystem::path& photo,
                        const PhotoDecoder& decoder, const ReadProgress& progress = {});

/// Keeps a part of a photo of the Pictures folder as "<stem> crop.bmp". Gives the file's name.
std::string KeepCrop(const ProgramFolder& folder, const std::string& pictureFile,
                     const Surface& crop);

}  // namespace vendrel
