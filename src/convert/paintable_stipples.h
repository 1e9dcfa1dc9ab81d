#pragma once

#include "convert/seen_stipples.h"
#include "shell/workplace.h"

namespace vendrel {

/// Merges and grows the areas of the stipple grid until none is below the limits chosen, protected
/// parts excepted; paints that lose all their stipples leave the palette. The kit is a paintable
/// one from then on. `seen` is of the photo that the grid was made of, and the palette.
void MakeStipplesPaintable(Workplace& place, const SeenStipples& seen);

}  // namespace vendrel
