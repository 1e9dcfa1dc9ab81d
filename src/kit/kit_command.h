#pragma once

#include "kit/arguments.h"
#include "kit/command_line.h"

namespace vendrel {

/// `vendrel kit`: makes a kit of every photo, each from the same fresh start so that their order
/// never matters. A photo that fails is reported and the rest go on; answers whether all were
/// made. Throws Error when the data files or the settings rule out every kit.
[[nodiscard]] bool RunKit(const KitOptions& options, const Surroundings& around);

/// Whether the paints and data that the settings name are there, without making anything. Throws
/// Error, UsageError.
void RequireSettings(const KitOptions& options, const Surroundings& around);

}  // namespace vendrel
