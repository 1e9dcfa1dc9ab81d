#pragma once

#include <string>

namespace vendrel {

/// What marks the paints on the printed plan, its chart and its lists. The sheet has letters
/// always.
enum class SymbolStyle {
    Letters,  // the sheet's
    Clear,    // of the sheet's those that are told apart best
    Numbers,  // 1, 2, 3 ...
    Signs,    // drawn shapes
    Mine      // the labels of the painter's own pots
};

/// The letter of each paint, from the first on: for Letters the sheet's own, for Clear as many of
/// them as there are paints, without the most alike, in the sheet's order. `paints` is 0 to
/// kSymbolCount.
[[nodiscard]] std::string LettersFor(SymbolStyle style, int paints);

}  // namespace vendrel
