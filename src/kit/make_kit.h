#pragma once

#include <filesystem>

#include "kit/arguments.h"
#include "kit/kit_photos.h"
#include "kit/kit_report.h"
#include "plan/exporter.h"
#include "shell/workplace.h"

namespace vendrel {

/// Throws Error when outputs asked for by name need an exporter and there is none.
void RequireExporter(const KitOutputs& outputs, const Exporter* exporter);

/// Makes one kit in a workplace that is set up and has no photo yet. Without an exporter the chart
/// is left out, and a note says so. Throws Error; then what stood in Results stays as it was.
[[nodiscard]] KitReport MakeKit(Workplace& place, const KitOptions& options, KitPhotos& photos,
                                const std::filesystem::path& photo, const Exporter* exporter);

/// Makes the kit of a file again from its grid, with the photo in `photo`. Throws Error as MakeKit.
[[nodiscard]] KitReport MakeKitAgain(Workplace& place, const KitOptions& options,
                                     const std::filesystem::path& photo, const Exporter* exporter);

}  // namespace vendrel
