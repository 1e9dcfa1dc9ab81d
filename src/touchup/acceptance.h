#pragma once

#include "shell/work_state.h"

namespace vendrel {

/// Makes the editor's copies the kit's own palette and grid: no area is numbered, CellMarks are
/// fresh. Paints keep their places, used or not, so that symbols mean what they meant. The copies
/// must be without flaw and of the photo's size.
void TakeOverCopies(WorkState& state);

}  // namespace vendrel
