#include "export/pdf_units.h"

#include <QtGui/QFontMetricsF>

#include "export/print_fonts.h"

namespace vendrel {

void DrawLineOfText(QPainter& painter, const QRectF& box, int flags, const QString& text) {
    const QFontMetricsF metrics(painter.font(), painter.device());
    painter.drawText(box, flags | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(text, Qt::ElideRight, box.width()));
}

void DrawTitle(QPainter& painter, const QRectF& box, double millimeters, const QString& text) {
    constexpr double kStep = 0.25;
    constexpr double kOneLine = 2.0 / 3;
    constexpr double kLeast = 0.45;
    for (double size = millimeters; size >= kLeast * millimeters; size -= kStep) {
        painter.setFont(TextFont(FontMm(size), Weight::Bold));
        const QFontMetricsF metrics(painter.font(), painter.device());
        if (metrics.horizontalAdvance(text) <= box.width()) {
            return DrawLineOfText(painter, box, Qt::AlignLeft, text);
        }
        const int wrapped = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
        const QRectF taken = metrics.boundingRect(box, wrapped, text);
        if (size < kOneLine * millimeters && taken.height() <= box.height() &&
            taken.width() <= box.width()) {
            return painter.drawText(box, wrapped, text);
        }
    }
    DrawLineOfText(painter, box, Qt::AlignLeft, text);
}

}  // namespace vendrel
