#pragma once

#include "touchup/edit_pen.h"

namespace vendrel {

enum class BrushSize { One = 1, Two = 2, Three = 3 };

struct EditBrush {
    BrushSize Size = BrushSize::One;
    int Paint = 0;  // 1..FoundCount
};

/// Stamps the brush on every stipple of the line from `from` to `to`, both included, so that a
/// fast pointer leaves no gaps. A brush of two reaches right and down, a brush of three around.
void DrawStroke(EditPen& pen, CellPos from, CellPos to, EditBrush brush);

/// Repaints the area of one paint that holds `at`, linked through sides and corners.
void FillArea(EditPen& pen, CellPos at, int paint);

/// Repaints every stipple of paint `from` with paint `to`.
void ReplacePaint(EditPen& pen, int from, int to);

}  // namespace vendrel
