#pragma once

#include "kitfile/object_reader.h"
#include "shell/kit_edits.h"

namespace vendrel {

/// Sides that a sheet can have at the smallest stipples.
inline constexpr int kMostStipplesASide = 546;

/// Throws FormatError, also for stipples that are edited twice.
[[nodiscard]] EditLayer ReadEditLayer(ObjectReader edits);

}  // namespace vendrel
