#pragma once

#include <filesystem>
#include <vector>

#include "kitset/save_kit.h"

namespace vendrel {

/// Saves outputs of the painted kit from a window, with a busy pointer, and tells of pictures in
/// Results that are of another kit. Answers the files. Throws Error, FileError.
std::vector<std::filesystem::path> SaveFromWindow(Workplace& place, const KitOrder& order);
/// The same of one output that needs no fonts.
std::filesystem::path SaveFromWindow(Workplace& place, OutputId output);

}  // namespace vendrel
