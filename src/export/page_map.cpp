#include "export/page_map.h"

#include <QtCore/QLineF>
#include <QtCore/QString>
#include <algorithm>

#include "export/pdf_units.h"
#include "export/print_fonts.h"

namespace vendrel {
namespace {

constexpr int kRulerCm = 5;

QRectF TileOnMap(const PagePlan& pages, const PageTile& tile, const QRectF& map) {
    const double x = map.width() / pages.Canvas.Width;
    const double y = map.height() / pages.Canvas.Height;
    return {map.left() + tile.Own.Left * x, map.top() + tile.Own.Top * y,
            (tile.Own.Right - tile.Own.Left) * x, (tile.Own.Bottom - tile.Own.Top) * y};
}

void DrawTileName(QPainter& painter, const PageTile& tile, const QRectF& box) {
    const double size = std::min({box.width() * 0.3, box.height() * 0.5, Mm(7)});
    const QRectF plate(box.center() - QPointF(size * 1.1, size * 0.7),
                       QSizeF(size * 2.2, size * 1.4));
    painter.fillRect(plate, QColor(255, 255, 255, 255));
    painter.setFont(TextFont(static_cast<int>(size), Weight::Bold));
    painter.drawText(plate, Qt::AlignCenter, ToQt(tile.Name()));
}

// Two of them, with marks at the halves.
void DrawInches(QPainter& painter, QPointF start) {
    constexpr int kHalves = 4;
    painter.drawLine(QLineF(start, start + QPointF(Mm(kHalves * kMmPerInch / 2), 0)));
    for (int half = 0; half <= kHalves; ++half) {
        const QPointF at = start + QPointF(Mm(half * kMmPerInch / 2), 0);
        painter.drawLine(QLineF(at, at - QPointF(0, Mm(half % 2 == 0 ? 2 : 1))));
        if (half % 2 == 0) {
            painter.drawText(QRectF(at + QPointF(-Mm(6), -Mm(4.9)), QSizeF(Mm(12), Mm(3))),
                             Qt::AlignHCenter | Qt::AlignBottom,
                             half == kHalves ? QString("2 in") : QString::number(half / 2));
        }
    }
}

}  // namespace

QRectF PageMapRect(const PagePlan& pages, const QRectF& box) {
    const double scale =
        std::min(box.width() / pages.Canvas.Width, box.height() / pages.Canvas.Height);
    const QSizeF size(pages.Canvas.Width * scale, pages.Canvas.Height * scale);
    return {QPointF(box.center().x() - size.width() / 2, box.top()), size};
}

QRectF DrawPageMap(QPainter& painter, const PagePlan& pages, const QRectF& box,
                   const PageTile* current) {
    const QRectF map = PageMapRect(pages, box);
    painter.setPen(QPen(Qt::black, Mm(0.2)));
    for (const PageTile& tile : pages.Tiles) {
        const QRectF at = TileOnMap(pages, tile, map);
        const bool isCurrent =
            current != nullptr && current->Column == tile.Column && current->Row == tile.Row;
        painter.setBrush(isCurrent ? QBrush(QColor(60, 60, 60)) : QBrush(Qt::NoBrush));
        painter.drawRect(at);
        if (current == nullptr) {
            DrawTileName(painter, tile, at);
        }
    }
    painter.setBrush(Qt::NoBrush);
    return map;
}

void DrawRuler(QPainter& painter, QPointF start, bool inches) {
    painter.setPen(QPen(Qt::black, Mm(0.2)));
    painter.drawLine(QLineF(start, start + QPointF(Mm(10 * kRulerCm), 0)));
    painter.setFont(TextFont(FontMm(2.4)));
    for (int cm = 0; cm <= kRulerCm; ++cm) {
        const QPointF at = start + QPointF(Mm(10 * cm), 0);
        painter.drawLine(QLineF(at, at - QPointF(0, Mm(2))));
        const QString text = cm == kRulerCm ? QString("%1 cm").arg(cm) : QString::number(cm);
        painter.drawText(QRectF(at + QPointF(-Mm(6), Mm(0.4)), QSizeF(Mm(12), Mm(3))),
                         Qt::AlignHCenter | Qt::AlignTop, text);
    }
    if (inches) {
        DrawInches(painter, start - QPointF(0, Mm(2)));
    }
}

}  // namespace vendrel
