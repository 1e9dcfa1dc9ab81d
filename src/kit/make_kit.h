#pragma once

#include <filesystem>

#include "kit/arguments.h"
#include "kit/kit_photos.h"
#include "kit/kit_report.h"
#include "shell/workplace.h"

namespace vendrel {

/// Makes one kit in a workplace that is set up and has no photo yet. Throws Error; outputs written
/// before the failure are whole and stay.
[[nodiscard]] KitReport MakeKit(Workplace& place, const KitOptions& options, KitPhotos& photos,
                                const std::filesystem::path& photo);

}  // namespace vendrel
