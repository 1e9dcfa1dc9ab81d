#pragma once

#include "kit/arguments.h"
#include "kit/command_line.h"

namespace vendrel {

/// The kits of several photos, each made by a process of its own, `Jobs` of them at a time. What
/// they have to say comes in the order of the photos. Answers whether all were made. Throws
/// UsageError for photos whose kits would have one name, Stop when asked to.
[[nodiscard]] bool RunKitsSideBySide(const KitOptions& options, const Surroundings& around);

}  // namespace vendrel
