#pragma once

#include <CLI/CLI.hpp>
#include <span>
#include <string>
#include <string_view>

#include "kit/arguments.h"

namespace vendrel {

/// The options of `vendrel kit`, read into `kit`, and its photos.
void AddKitOptions(CLI::App& app, KitOptions& kit);

/// The word for --fit that --crop stands for, so that the last of both counts. A part behind it
/// belongs to it and is taken off `rest`; any other word there is a photo. Throws UsageError.
[[nodiscard]] std::string CropWord(std::string_view word, std::span<const std::string_view>& rest);

}  // namespace vendrel
