#pragma once

#include "shell/records.h"
#include "support/cell_queue.h"

namespace vendrel {

/// The areas of the paint pass.
struct PaintPass {
    OneBased<PaintArea> Areas;
    int AreaCount = 0;       // one more than the areas found
    int NextAreaNumber = 1;  // numbers the areas of a sheet as well
    bool PaintingDone = false;
    CellQueue TestCells;
};

}  // namespace vendrel
