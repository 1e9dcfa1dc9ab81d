#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace vendrel {

/// What a picture from the clipboard is called.
inline constexpr const char* kPastedStem = "Pasted picture";

/// The name under which a photo that cannot stand in Pictures as it is is kept, without an ending:
/// its own, with
/// "-" for every "." inside, since everything made from a photo is named after what stands before
/// its first ".".
[[nodiscard]] std::string PictureStem(const std::filesystem::path& photo);

/// Whether a bitmap can stand in Pictures under its own name: everything made from it is named
/// after what stands before the first ".", so there must be something, and a ".".
[[nodiscard]] bool NamesAPicture(const std::filesystem::path& bitmap);

/// What follows a photo's name in the longest name of a result.
inline constexpr std::string_view kLongestResult = " Difficult Symbol Reference.BMP";

/// Throws FileError when what is made of a bitmap could not be named: its name up to the first dot
/// and `longest` behind it must fit on a disk.
void RequireResultNames(const std::filesystem::path& photo, std::string_view longest);

}  // namespace vendrel
