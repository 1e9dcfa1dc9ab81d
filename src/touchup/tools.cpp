#include "touchup/tools.h"

#include <cstdlib>
#include <vector>

namespace vendrel {
namespace {

void Stamp(EditPen& pen, CellPos at, EditBrush brush) {
    const int size = static_cast<int>(brush.Size);
    const int left = at.X - (size - 1) / 2;
    const int top = at.Y - (size - 1) / 2;
    for (int y = top; y < top + size; ++y) {
        for (int x = left; x < left + size; ++x) {
            pen.Paint({x, y}, brush.Paint);
        }
    }
}

}  // namespace

void DrawStroke(EditPen& pen, CellPos from, CellPos to, EditBrush brush) {
    const int width = std::abs(to.X - from.X);
    const int height = -std::abs(to.Y - from.Y);
    const int stepX = from.X < to.X ? 1 : -1;
    const int stepY = from.Y < to.Y ? 1 : -1;
    int error = width + height;
    for (CellPos at = from;;) {
        Stamp(pen, at, brush);
        if (at == to) {
            return;
        }
        const int twice = 2 * error;
        if (twice >= height) {
            error += height;
            at.X += stepX;
        }
        if (twice <= width) {
            error += width;
            at.Y += stepY;
        }
    }
}

void FillArea(EditPen& pen, CellPos at, int paint) {
    const EditSheet& sheet = pen.Sheet();
    const int from = sheet.PaintAt(at);
    if (!sheet.Holds(at) || !sheet.HoldsPaint(paint) || from == paint) {
        return;
    }
    // The new paint itself marks the stipples done, so the fill costs no more than it repaints.
    pen.Paint(at, paint);
    std::vector<CellPos> open{at};
    while (!open.empty()) {
        const CellPos center = open.back();
        open.pop_back();
        for (int y = center.Y - 1; y <= center.Y + 1; ++y) {
            for (int x = center.X - 1; x <= center.X + 1; ++x) {
                if (sheet.Holds({x, y}) && sheet.PaintAt({x, y}) == from) {
                    pen.Paint({x, y}, paint);
                    open.push_back({x, y});
                }
            }
        }
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
