#include "export/pdf_units.h"

#include <QtGui/QFontMetricsF>

namespace vendrel {

bool Fits(const QPainter& painter, const QRectF& box, const QString& text) {
    return QFontMetricsF(painter.font(), painter.device()).horizontalAdvance(text) <= box.width();
}

void DrawLineOfText(QPainter& painter, const QRectF& box, int flags, const QString& text) {
    const QFontMetricsF metrics(painter.font(), painter.device());
    painter.drawText(box, flags | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(text, Qt::ElideRight, box.width()));
}

}  // namespace vendrel
