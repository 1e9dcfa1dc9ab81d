#pragma once

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <vector>

#include "desktop/sheet_place.h"
#include "forms/touch_up_form.h"
#include "support/surface.h"

namespace vendrel {

/// What is shown beside the stipples' colours.
struct EditorLook {
    bool GridLines = false;
    bool Symbols = false;
    int PhotoPercent = 0;  // how far the photo shows through, 0..100
    bool PhotoOnly = false;
};

/// Draws the editor's stipples, from an image of one pixel a stipple, so that an edit costs no more
/// than it touched.
class SheetPainter {
  public:
    /// `photo` as the stipples were cut from it, each `stippleSize` pixels wide.
    void SetPhoto(const Surface& photo, int stippleSize);
    /// The stipples of `dirty` were repainted, or the sheet changed its size.
    void Follow(const TouchUpForm& form, const CellRect& dirty);

    /// Draws what shows of the sheet within `exposed`.
    void Paint(QPainter& painter, const QRect& exposed, const SheetPlace& place,
               const EditorLook& look);

    /// The photo, or another picture of its size, where the stipples lie that were cut from it.
    void PaintPicture(QPainter& painter, const QImage& picture, const SheetPlace& place) const;
    [[nodiscard]] const QImage& Photo() const { return photo_; }
    /// One pixel a stipple.
    [[nodiscard]] const QImage& Cells() const { return cells_; }

    [[nodiscard]] int Across() const { return cells_.width(); }
    [[nodiscard]] int Down() const { return cells_.height(); }
    [[nodiscard]] CellRect Bounds() const { return {1, 1, Across(), Down()}; }

    /// Symbols in smaller stipples could not be told apart.
    static constexpr double kSmallestForSymbols = 10;
    static constexpr double kSmallestForGrid = 4;

  private:
    void TakePalette(const TouchUpControls& shown);
    void PaintGrid(QPainter& painter, const CellRect& cells, const SheetPlace& place) const;
    void PaintSymbols(QPainter& painter, const CellRect& cells, const SheetPlace& place,
                      bool opaque);
    [[nodiscard]] const QPixmap& Glyph(int paint, int edge, qreal ratio);

    QImage cells_;
    std::vector<int> paints_;  // of the stipples of cells_, row by row
    OneBased<TouchUpPaint> palette_;
    QImage photo_;
    int stippleSize_ = 1;
    OneBased<QPixmap> glyphs_;
    int glyphEdge_ = 0;
    bool glyphsOpaque_ = false;
};

}  // namespace vendrel
