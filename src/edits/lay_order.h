#pragma once

#include "shell/kit_edits.h"

namespace vendrel {

/// Where the layer's order puts the paints of a palette: the new place by the one that the
/// conversion gave. They stand as the order has them, each in the very place it has there unless
/// those behind it need the room; a paint that an exchange brought stands for the one it replaced.
/// What the order does not know fills the places between and behind, as it came.
[[nodiscard]] OneBased<int> PlacesByOrder(const PaintList& paints, const EditLayer& layer);

}  // namespace vendrel
