#pragma once

#include <string_view>

#include "shell/workplace.h"

namespace vendrel {

/// Lists the names of the selected paint sets, in PaintSets order.
void FillSelectedPaintsList(WorkState& state);

/// Appends the catalogue's paints of one set, in catalogue order. Throws OverflowError past 32767
/// paints.
void AppendPaintsOf(const WorkState& state, std::string_view setName, PaintList& paints);

/// Fills the palette with the paints of SelectedPaintsList, set by set.
void LoadColors(Workplace& place);

}  // namespace vendrel
