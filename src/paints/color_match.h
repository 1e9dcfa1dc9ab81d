#pragma once

#include "shell/palette.h"
#include "support/color.h"

namespace vendrel {

/// Splits a packed colour into channels of 0..255.
void GetRgb(Color color, int& r, int& g, int& b);

/// Replaces a colour by the nearest paint of the palette, the later of equally near ones, and puts
/// that paint's index into `Index`. `SkipIndex` is left out of the search (0 leaves out none).
/// Without a paint to choose, nothing changes.
void ColorMatch(const Palette& palette, int& R, int& G, int& B, int& Index, int SkipIndex);

}  // namespace vendrel
