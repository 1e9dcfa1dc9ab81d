#include "export/pdf_units.h"

#include <QtGui/QFontMetricsF>

namespace vendrel {

void DrawLineOfText(QPainter& painter, const QRectF& box, int flags, const QString& text) {
    const QFontMetricsF metrics(painter.font(), painter.device());
    painter.drawText(box, flags | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(text, Qt::ElideRight, box.width()));
}

}  // namespace vendrel
