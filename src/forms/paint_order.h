#pragma once

#include <string>
#include <vector>

#include "shell/records.h"

namespace vendrel {

/// How the editor's list of paints is sorted.
enum class PaintOrder { Symbol, Hue, Lightness, Use };

/// The paints, from 1, in the order of the list. Grays, which have no hue, stand last by hue; equal
/// ones stay in the order of their symbols; the most used stand first by use.
[[nodiscard]] std::vector<int> SortedPaints(const PaintList& paints, PaintOrder order);

/// Paints of the catalogue that a palette does not have, each once, whose set, code or name holds
/// `words`, whatever the case of its letters: those that look most like `wanted` first.
[[nodiscard]] std::vector<PaintColor> OfferPaints(const PaintList& catalogue,
                                                  const PaintList& palette,
                                                  const std::string& words,
                                                  const PaintColor& wanted);

}  // namespace vendrel
