#pragma once

#include <vector>

#include "shell/records.h"

namespace vendrel {

/// Adds to the paints allowed those that the painter owns. Of a paint that is there already the
/// painter's own color holds.
void JoinOwned(PaintList& allowed, const PaintList& owned);

/// Which of some paints are owned, from the first on.
[[nodiscard]] std::vector<bool> WhichAreOwned(const PaintList& paints, const PaintList& owned);

}  // namespace vendrel
