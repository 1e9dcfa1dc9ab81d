#pragma once

#include <filesystem>

#include "plan/exporter.h"
#include "plan/shopping.h"
#include "shell/workplace.h"

namespace vendrel {

/// What the kit at hand needs of its paints, by the rules that its pages are printed by. Paints a
/// copy of it where it is not painted yet. Throws Error for a missing font.
[[nodiscard]] KitNeeds NeedsOfKitAtHand(const Workplace& place, const Exporter& fonts,
                                        const PlanSettings& plan);

/// The same of a kit file, while the kit at hand stays as it is. Throws FileError, FormatError,
/// also when its photo is not in Pictures, and Error.
[[nodiscard]] KitNeeds NeedsOfKitFile(const Workplace& place, const Exporter& fonts,
                                      const std::filesystem::path& file);

}  // namespace vendrel
