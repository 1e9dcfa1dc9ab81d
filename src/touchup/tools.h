#pragma once

#include <cstdlib>
#include <vector>

#include "touchup/edit_pen.h"
#include "touchup/recording.h"

namespace vendrel {

inline constexpr int kLargestBrush = 9;

struct EditBrush {
    int Size = 1;   // stipples across, 1..kLargestBrush
    int Paint = 0;  // 1..FoundCount
    bool Round = false;

    bool operator==(const EditBrush&) const = default;
};

/// The stipples under the brush, row-major. A brush of two reaches right and down, one of three
/// around. Some may lie outside the sheet.
[[nodiscard]] std::vector<CellPos> CellsUnder(const EditBrush& brush, CellPos at);

/// Calls `visit(CellPos)` for every stipple of the line, both ends included, without gaps.
template <class Visit>
void ForLine(CellPos from, CellPos to, Visit visit) {
    const int width = std::abs(to.X - from.X);
    const int height = -std::abs(to.Y - from.Y);
    const int stepX = from.X < to.X ? 1 : -1;
    const int stepY = from.Y < to.Y ? 1 : -1;
    int error = width + height;
    for (CellPos at = from;;) {
        visit(at);
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

/// Stamps the brush on every stipple of the line from `from` to `to`, so that a fast pointer leaves
/// no gaps.
void DrawStroke(EditPen& pen, CellPos from, CellPos to, const EditBrush& brush);

/// The same with the paint that each stipple has in the base; those outside it are left alone.
void EraseStroke(EditPen& pen, CellPos from, CellPos to, const EditBrush& brush,
                 const BaseView& base);

/// Repaints the area of one paint that holds `at`, linked through sides and corners.
void FillArea(EditPen& pen, CellPos at, int paint);

/// Repaints every stipple of paint `from` with paint `to`.
void ReplacePaint(EditPen& pen, int from, int to);

}  // namespace vendrel
