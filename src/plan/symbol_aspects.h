#pragma once

#include <array>

#include "output/symbol_set.h"
#include "shell/records.h"

namespace vendrel {

/// How wide each symbol's ink is for its height, by symbol 1..50; entry 0 is not used.
using SymbolAspects = std::array<double, kSymbolCount + 1>;

/// The same by paint: of the symbol that marks it.
using PaintAspects = OneBased<double>;

/// Of a palette of at most kSymbolCount paints.
[[nodiscard]] PaintAspects AspectsOf(const PaintList& palette, const SymbolAspects& aspects);

}  // namespace vendrel
