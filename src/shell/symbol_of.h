#pragma once

#include "shell/records.h"

namespace vendrel {

/// The number of the symbol that marks a paint of a palette: paint k has symbol k. 0, which has no
/// ink, for a paint that the palette does not hold. A palette of more paints than there are symbols
/// gives numbers without a symbol.
[[nodiscard]] inline int SymbolOf(const PaintList& palette, int paint) {
    return palette.Holds(paint) ? paint : 0;
}

}  // namespace vendrel
