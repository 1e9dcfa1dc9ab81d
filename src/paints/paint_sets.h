#pragma once

#include <string_view>

#include "shell/catalogue.h"
#include "shell/paint_choice.h"
#include "shell/palette.h"

namespace vendrel {

/// Lists the names of the selected paint sets, in PaintSets order.
void FillSelectedPaintsList(PaintChoice& choice, const Catalogue& catalogue);

/// Appends the catalogue's paints of one set, in catalogue order. Throws OverflowError past 32767
/// paints.
void AppendPaintsOf(const Catalogue& catalogue, std::string_view setName, PaintList& paints);

/// Fills the palette with the paints of SelectedPaintsList, set by set.
void LoadColors(Palette& palette, const Catalogue& catalogue, const PaintChoice& choice);

}  // namespace vendrel
