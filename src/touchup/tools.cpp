#include "touchup/tools.h"

#include "touchup/selecting.h"

namespace vendrel {

std::vector<CellPos> CellsUnder(const EditBrush& brush, CellPos at) {
    const int size = brush.Size;
    const int left = at.X - (size - 1) / 2;
    const int top = at.Y - (size - 1) / 2;
    std::vector<CellPos> cells;
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            // From the middle, in halves of a stipple. A circle of the whole size would keep the
            // corners of a brush of three; this much less rounds all sizes without lone tips.
            const int dx = 2 * x - (size - 1);
            const int dy = 2 * y - (size - 1);
            if (!brush.Round || 4 * (dx * dx + dy * dy) <= size * (4 * size - 3)) {
                cells.push_back({left + x, top + y});
            }
        }
    }
    return cells;
}

void DrawStroke(EditPen& pen, CellPos from, CellPos to, const EditBrush& brush) {
    ForLine(from, to, [&](CellPos spot) {
        for (const CellPos& at : CellsUnder(brush, spot)) {
            pen.Paint(at, brush.Paint);
        }
    });
}

void EraseStroke(EditPen& pen, CellPos from, CellPos to, const EditBrush& brush,
                 const BaseView& base) {
    ForLine(from, to, [&](CellPos spot) {
        for (const CellPos& at : CellsUnder(brush, spot)) {
            pen.Paint(at, base.PaintAt(at));
        }
    });
}

void FillArea(EditPen& pen, CellPos at, int paint) {
    for (const CellPos& cell : AreaAround(pen.Sheet(), at).Cells()) {
        pen.Paint(cell, paint);
    }
}

void ReplacePaint(EditPen& pen, int from, int to) {
    const EditSheet& sheet = pen.Sheet();
    for (int y = 1; y <= sheet.Down(); ++y) {
        for (int x = 1; x <= sheet.Across(); ++x) {
            if (sheet.PaintAt({x, y}) == from) {
                pen.Paint({x, y}, to);
            }
        }
    }
}

}  // namespace vendrel
