#pragma once

#include "kitfile/object_reader.h"
#include "shell/kit_edits.h"

namespace vendrel {

/// Throws FormatError, also for stipples that are edited twice.
[[nodiscard]] EditLayer ReadEditLayer(ObjectReader edits);

}  // namespace vendrel
