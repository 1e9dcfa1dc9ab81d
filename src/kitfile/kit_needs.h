#pragma once

#include <filesystem>

#include "kitfile/kit_file.h"
#include "plan/exporter.h"
#include "plan/shopping.h"
#include "shell/workplace.h"

namespace vendrel {

/// What a kit file's paints are needed for, by the rules that its pages are printed by. Takes the
/// kit up in `place` and paints it there; its photo is in that file. Throws as TakeKit, and Error
/// for a missing font.
[[nodiscard]] KitNeeds NeedsOfKit(Workplace& place, const KitFile& kit,
                                  const std::filesystem::path& photo, const Exporter& fonts);

}  // namespace vendrel
