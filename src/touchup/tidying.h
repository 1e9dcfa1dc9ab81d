#pragma once

#include <string>
#include <vector>

#include "touchup/edit_sheet.h"

namespace vendrel {

/// A paint whose symbol is another one now.
struct SymbolMove {
    std::string PaintName;
    int Old = 0;  // symbol
    int New = 0;

    bool operator==(const SymbolMove&) const = default;
};

/// What tidying did to the palette.
struct TidyReport {
    std::vector<SymbolMove> Moves;
    std::vector<std::string> Dropped;  // names of paints that no stipple used
};

/// The sheet without the paints that no stipple uses; those after them move up. The sheet must be
/// without flaw.
[[nodiscard]] SheetContents WithoutUnusedPaints(const EditSheet& sheet, TidyReport& report);

}  // namespace vendrel
