#pragma once

#include "regions/labelling.h"

namespace vendrel {

/// Cuts a grid into regions that hang together by their sides. Crumbs of fewer than `smallest`
/// places take the value with which they share the longest border, the lowest of equals; crumbs do
/// not count as neighbors until they have grown together with a region. A grid of nothing but
/// crumbs stays as it is.
[[nodiscard]] Regions FindRegionsWithoutCrumbs(ValueGrid values, int smallest);

}  // namespace vendrel
