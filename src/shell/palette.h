#pragma once

#include "shell/work_state.h"

namespace vendrel {

// The only ones that change a list of paints together with its count.

/// Makes `paints` the catalogue.
void SetCatalogue(WorkState& state, PaintList paints);

/// Makes `paints` the working palette.
void SetPalette(WorkState& state, PaintList paints);

/// Makes `paints` the found colors.
void SetFoundColors(WorkState& state, PaintList paints);

/// Adds a found color. Throws OverflowError past 32767.
void AddFoundColor(WorkState& state, PaintColor paint);

}  // namespace vendrel
