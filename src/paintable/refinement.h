#pragma once

#include "paintable/area_map.h"

namespace vendrel {

/// Lets stipples change to an area beside them, and areas to another paint, wherever that lowers
/// the seen difference and keeps areas whole and within the limits. At most `rounds` times over
/// the grid.
void Refine(AreaMap& map, int rounds);

}  // namespace vendrel
