#pragma once

#include <cstdint>

#include "shell/records.h"

namespace vendrel {

/// The shapes that mark paints on a sheet; SymbolOf says which of them marks a paint.
struct Symbols {
    OneBased<std::int16_t> SymbolCodes;
    OneBased<SymbolGlyph> SymbolGlyphs;
};

}  // namespace vendrel
