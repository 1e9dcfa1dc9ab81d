#include "desktop/sheet_painter.h"

#include <QFont>
#include <QFontDatabase>
#include <cmath>
#include <cstddef>
#include <utility>

#include "desktop/text.h"
#include "export/qt_image.h"
#include "output/contrast.h"
#include "support/list.h"

namespace vendrel {
namespace {

QColor ToQColor(Color color) {
    return {RedOf(color), GreenOf(color), BlueOf(color)};
}

constexpr int kPaleGray = 255;
constexpr int kDimGray = 85;  // where a light paint stands out

// All of one gray, but with enough left to find one's way.
Color Paled(Color color, int gray) {
    const auto pale = [gray](int level) { return gray + (level - gray) / 7; };
    return Rgb(pale(RedOf(color)), pale(GreenOf(color)), pale(BlueOf(color)));
}

bool IsLight(Color color) {
    return 3 * RedOf(color) + 6 * GreenOf(color) + BlueOf(color) > 1900;
}

}  // namespace

void SheetPainter::SetPhoto(const Surface& photo, int stippleSize) {
    photo_ = ToImage(photo);
    stippleSize_ = stippleSize;
}

void SheetPainter::Follow(const TouchUpForm& form, const CellRect& dirty) {
    const EditSheet& sheet = form.Sheet();
    CellRect cells = dirty;
    if (cells_.size() != QSize(sheet.Across(), sheet.Down())) {
        cells_ = QImage(sheet.Across(), sheet.Down(), QImage::Format_RGB32);
        paints_.assign(static_cast<std::size_t>(sheet.Across() * sheet.Down()), 0);
        cells = sheet.Bounds();
    }
    if (cells.Left <= 1 && cells.Top <= 1 && cells.Right >= sheet.Across() &&
        cells.Bottom >= sheet.Down()) {
        // Only what touches everything can have changed the paints' colours.
        TakePalette(form.Controls());
    }
    for (int y = cells.Top; y <= std::min(cells.Bottom, sheet.Down()); ++y) {
        auto* line = reinterpret_cast<QRgb*>(cells_.scanLine(y - 1));
        for (int x = cells.Left; x <= std::min(cells.Right, sheet.Across()); ++x) {
            const int paint = sheet.HoldsPaint(sheet.PaintAt({x, y})) ? sheet.PaintAt({x, y}) : 0;
            At(paints_, (y - 1) * sheet.Across() + x - 1) = paint;
            line[x - 1] = ToQColor(palette_[paint].Swatch).rgb();
        }
    }
}

void SheetPainter::TakePalette(const TouchUpControls& shown) {
    palette_ = shown.Palette;
    glyphs_.Clear();
    const int chosen = palette_.Holds(shown.Brush.Paint) ? shown.Brush.Paint : 0;
    const int gray = IsLight(palette_[chosen].Swatch) ? kDimGray : kPaleGray;
    for (int i = 1; i <= palette_.Count() && shown.Alone; ++i) {
        if (i != shown.Brush.Paint) {
            palette_[i].Swatch = Paled(palette_[i].Swatch, gray);
        }
    }
}

void SheetPainter::Paint(QPainter& painter, const QRect& exposed, const SheetPlace& place,
                         const EditorLook& look) {
    const CellRect cells = place.CellsIn(exposed, Bounds());
    if (cells.Empty()) {
        return;
    }
    const QRect shown = place.RectOf(cells);
    painter.save();
    painter.setClipRect(shown, Qt::IntersectClip);
    const bool symbols = look.Symbols && !look.PhotoOnly && place.Edge >= kSmallestForSymbols;
    // Stipples of whole pixels are drawn with their symbols, which is faster than blending.
    const bool opaque = symbols && look.PhotoPercent == 0 && place.Edge == std::floor(place.Edge);
    if (!look.PhotoOnly && !opaque) {
        // The whole, cut by the clip: parts drawn by themselves would leave seams at zooms between
        // whole pixels.
        painter.drawImage(QRectF(place.Corner, QSizeF(cells_.size()) * place.Edge), cells_);
    }
    if (look.PhotoOnly || look.PhotoPercent > 0) {
        painter.setOpacity(look.PhotoOnly ? 1 : look.PhotoPercent / 100.0);
        PaintPicture(painter, photo_, place);
        painter.setOpacity(1);
    }
    if (symbols) {
        PaintSymbols(painter, cells, place, opaque);
    }
    if (look.GridLines && place.Edge >= kSmallestForGrid) {
        PaintGrid(painter, cells, place);
    }
    painter.restore();
}

// The stipples begin one pixel inside the photo, which a sheet of another shape stretches.
void SheetPainter::PaintPicture(QPainter& painter, const QImage& picture,
                                const SheetPlace& place) const {
    const double scale = place.Edge / stippleSize_;
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale < 1);
    painter.translate(place.Corner);
    painter.scale(scale, scale);
    const QSizeF across(std::max(photo_.width() / stippleSize_, 1),
                        std::max(photo_.height() / stippleSize_, 1));
    const QSizeF shown(photo_.width() * cells_.width() / across.width(),
                       photo_.height() * cells_.height() / across.height());
    painter.drawImage(QRectF(QPointF(-1, -1), shown), picture);
    painter.restore();
}

void SheetPainter::PaintGrid(QPainter& painter, const CellRect& cells,
                             const SheetPlace& place) const {
    const QRect all = place.RectOf(cells);
    // Light over dark, dark over light: neither alone shows on every paint.
    for (const auto& [color, shift] :
         {std::pair(QColor(0, 0, 0, 100), 0), std::pair(QColor(255, 255, 255, 70), 1)}) {
        if (shift > 0 && place.Edge < 2 * kSmallestForGrid) {
            return;  // two lines would leave too little of the stipple
        }
        for (int x = cells.Left; x <= cells.Right; ++x) {
            const int left = place.RectOf(CellPos{x, cells.Top}).left() + shift;
            painter.fillRect(left, all.top(), 1, all.height(), color);
        }
        for (int y = cells.Top; y <= cells.Bottom; ++y) {
            const int top = place.RectOf(CellPos{cells.Left, y}).top() + shift;
            painter.fillRect(all.left(), top, all.width(), 1, color);
        }
    }
}

void SheetPainter::PaintSymbols(QPainter& painter, const CellRect& cells, const SheetPlace& place,
                                bool opaque) {
    const int edge = static_cast<int>(place.Edge);
    const qreal ratio = painter.device()->devicePixelRatioF();
    if (std::exchange(glyphsOpaque_, opaque) != opaque) {
        glyphs_.Clear();
    }
    for (int y = cells.Top; y <= cells.Bottom; ++y) {
        for (int x = cells.Left; x <= cells.Right; ++x) {
            const int paint = At(paints_, (y - 1) * Across() + x - 1);
            if (paint > 0) {
                painter.drawPixmap(place.RectOf(CellPos{x, y}).topLeft(),
                                   Glyph(paint, edge, ratio));
            } else if (opaque) {
                painter.fillRect(place.RectOf(CellPos{x, y}), ToQColor(palette_[0].Swatch));
            }
        }
    }
}

const QPixmap& SheetPainter::Glyph(int paint, int edge, qreal ratio) {
    if (edge != glyphEdge_ || glyphs_.Count() != palette_.Count()) {
        glyphs_ = OneBased<QPixmap>(palette_.Count());
        glyphEdge_ = edge;
    }
    QPixmap& glyph = glyphs_[paint];
    if (glyph.isNull()) {
        const TouchUpPaint& look = palette_[paint];
        glyph = QPixmap(QSize(edge, edge) * ratio);
        glyph.setDevicePixelRatio(ratio);
        glyph.fill(glyphsOpaque_ ? ToQColor(look.Swatch) : QColor(Qt::transparent));
        QPainter painter(&glyph);
        QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        font.setPixelSize(std::max(8, edge * 3 / 4));
        painter.setFont(font);
        painter.setPen(ToQColor(InkOn(look.Swatch)));
        painter.drawText(QRect(0, 0, edge, edge), Qt::AlignCenter, Text(look.Symbol));
    }
    return glyph;
}

}  // namespace vendrel
