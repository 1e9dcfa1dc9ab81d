#pragma once

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <algorithm>
#include <cmath>

#include "touchup/cell_rect.h"

namespace vendrel {

/// Where a sheet of stipples lies on screen.
struct SheetPlace {
    QPoint Corner;    // of stipple (1, 1)
    double Edge = 1;  // pixels per stipple, whole ones or not

    [[nodiscard]] CellPos CellAt(QPointF point) const {
        return {static_cast<int>(std::floor((point.x() - Corner.x()) / Edge)) + 1,
                static_cast<int>(std::floor((point.y() - Corner.y()) / Edge)) + 1};
    }
    /// The pixels of the stipples: rectangles side by side neither overlap nor leave a gap.
    [[nodiscard]] QRect RectOf(const CellRect& cells) const {
        const QPoint from(Corner.x() + At(cells.Left - 1), Corner.y() + At(cells.Top - 1));
        const QPoint end(Corner.x() + At(cells.Right), Corner.y() + At(cells.Bottom));
        return {from, QSize(end.x() - from.x(), end.y() - from.y())};
    }
    [[nodiscard]] QRect RectOf(CellPos cell) const {
        return RectOf(CellRect{cell.X, cell.Y, cell.X, cell.Y});
    }
    /// The stipples of a sheet that show within `pixels`.
    [[nodiscard]] CellRect CellsIn(const QRect& pixels, const CellRect& sheet) const {
        const CellPos first = CellAt(pixels.topLeft());
        const CellPos last = CellAt(QPointF(pixels.right() + 1, pixels.bottom() + 1));
        return {std::max(first.X, sheet.Left), std::max(first.Y, sheet.Top),
                std::min(last.X, sheet.Right), std::min(last.Y, sheet.Bottom)};
    }

  private:
    [[nodiscard]] int At(int cells) const { return static_cast<int>(std::lround(cells * Edge)); }
};

}  // namespace vendrel
