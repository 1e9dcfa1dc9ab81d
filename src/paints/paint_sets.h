#pragma once

#include <string_view>
#include <vector>

#include "shell/workplace.h"

namespace vendrel {

/// Lists the names of the selected paint sets, in PaintSets order.
void FillSelectedPaintsList(WorkState& state);

/// Appends the catalogue's paints of one set, in catalogue order. Throws OverflowError past 32767
/// paints.
void AppendPaintsOf(const WorkState& state, std::string_view setName,
                    std::vector<PaintColor>& paints);

/// Makes `paints` the working palette; its entry 0 is empty.
void SetPalette(WorkState& state, std::vector<PaintColor> paints);

/// Fills the palette with the paints of SelectedPaintsList, set by set.
void LoadColors(Workplace& place);

}  // namespace vendrel
