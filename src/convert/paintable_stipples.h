#pragma once

#include "shell/workplace.h"

namespace vendrel {

/// Merges and grows the areas of the stipple grid until none is below the limits chosen, protected
/// parts excepted; paints that lose all their stipples leave the palette. The kit is a paintable
/// one from then on. The photo must be the one that the grid was made of.
void MakeStipplesPaintable(Workplace& place);

}  // namespace vendrel
