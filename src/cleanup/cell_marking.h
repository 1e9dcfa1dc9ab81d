#pragma once

#include <span>

#include "cleanup/pass_progress.h"
#include "drawing/brush.h"
#include "drawing/easel.h"
#include "shell/paint_pass.h"
#include "shell/stipple_grid.h"

namespace vendrel {

/// Numbers every area of one paint. `cells` are all cells of that paint in row-major order. Writes
/// AreaNumber and Visited, marks loners, raises NextAreaNumber. While somebody watches, the search
/// is drawn on the work picture. Throws OverflowError past 32767 areas.
void MarkCells(const Easel& easel, StippleGrid& grid, PaintPass& pass,
               std::span<const CellPos> cells, PassProgress& progress);

/// Marks the loners among `cells`, all of paint `colorIndex`, and redraws their dots, recorded.
/// A cell that has company is a loner no longer.
void RedrawLoners(const Easel& easel, StippleGrid& grid, int colorIndex,
                  std::span<const CellPos> cells, BrushShape shape);

}  // namespace vendrel
