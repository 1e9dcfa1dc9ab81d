#include "export/sticker_pages.h"

#include <QtGui/QFontMetricsF>
#include <algorithm>

#include "export/pdf_file.h"
#include "export/pdf_units.h"
#include "export/print_fonts.h"
#include "support/error.h"

namespace vendrel {
namespace {

constexpr double kEdge = 1.5;        // printers and cutters miss by about a millimeter
constexpr double kGridLine = 0.05;   // to cut along
constexpr double kLargestLabel = 9;  // letters, millimeters
constexpr double kSmallestText = 1.6;

// As large as a width leaves it.
QFont FittedFont(const QString& text, double mm, double width, Weight weight) {
    for (; mm > kSmallestText; mm *= 0.95) {
        const QFont font = TextFont(FontMm(mm), weight);
        if (QFontMetricsF(font).horizontalAdvance(text) <= width) {
            return font;
        }
    }
    return TextFont(FontMm(kSmallestText), weight);
}

// The line under the letters says which way is up: on a round pot 6 and 9 are one.
void DrawBigLabel(QPainter& painter, const QRectF& box, const QString& label) {
    const double line = Mm(0.5);
    const double height = std::min(box.height() - 2 * line, Mm(kLargestLabel));
    painter.setFont(FittedFont(label, height / kUnitsPerMm, box.width(), Weight::Bold));
    const QRectF drawn = QFontMetricsF(painter.font()).tightBoundingRect(label);
    const double top = box.center().y() - (drawn.height() + 2 * line) / 2;
    painter.drawText(QPointF(box.center().x() - drawn.center().x(), top - drawn.top()), label);
    const double half = std::min(std::max(drawn.width(), Mm(3)), box.width()) / 2;
    painter.fillRect(QRectF(box.center().x() - half, top + drawn.height() + line, 2 * half, line),
                     Qt::black);
}

// Larger than half of the label's letters a name says no more.
QFont WrappedFont(const QRectF& box, int flags, const QString& text) {
    for (double mm = std::min(box.height() / kUnitsPerMm / 2.6, 3.2);; mm *= 0.93) {
        const QFont font = TextFont(FontMm(std::max(mm, kSmallestText)), Weight::Bold);
        const QRectF drawn = QFontMetricsF(font).boundingRect(box, flags, text);
        if (mm <= kSmallestText ||
            (drawn.width() <= box.width() && drawn.height() <= box.height())) {
            return font;
        }
    }
}

void DrawPaintText(QPainter& painter, const QRectF& box, const PaintColor& paint) {
    const QRectF above(box.left(), box.top(), box.width(), box.height() * 0.6);
    const QRectF below(box.left(), above.bottom(), box.width(), box.height() * 0.4);
    constexpr int kWrapped = Qt::AlignLeft | Qt::AlignBottom | Qt::TextWordWrap;
    painter.save();
    painter.setClipRect(above);
    painter.setFont(WrappedFont(above, kWrapped, ToQt(paint.PaintName)));
    painter.drawText(above, kWrapped, ToQt(paint.PaintName));
    painter.restore();
    const double mm = std::clamp(box.height() / kUnitsPerMm / 7, kSmallestText, 2.4);
    painter.setFont(TextFont(FontMm(mm)));
    const double line = QFontMetricsF(painter.font()).lineSpacing();
    const bool two = !paint.PaintCode.empty() && 2 * line <= below.height();
    const QString code = ToQt(paint.PaintCode);
    if (two) {
        const QRectF upper(below.left(), below.top(), below.width(), below.height() / 2);
        DrawLineOfText(painter, upper, Qt::AlignLeft | Qt::AlignVCenter, code);
        DrawLineOfText(painter, upper.translated(0, upper.height()),
                       Qt::AlignLeft | Qt::AlignVCenter, ToQt(paint.Mfg));
        return;
    }
    const QString both = code.isEmpty() || paint.Mfg.empty() ? code + ToQt(paint.Mfg)
                                                             : code + ", " + ToQt(paint.Mfg);
    DrawLineOfText(painter, below, Qt::AlignLeft | Qt::AlignTop, both);
}

void DrawSticker(QPainter& painter, const PlanRect& place, const Sticker& sticker) {
    const QRectF inner =
        MmRect(place.Left + kEdge, place.Top + kEdge, place.Right - place.Left - 2 * kEdge,
               place.Bottom - place.Top - 2 * kEdge);
    const double swatch = std::min(inner.height() * 0.3, Mm(4));
    const double big = std::min(inner.width() * 0.36, Mm(16));
    const QRectF color(inner.left(), inner.top(), swatch, inner.height());
    painter.setPen(QPen(Qt::gray, Mm(0.1)));
    painter.setBrush(ToQt(ColorOf(sticker.Paint)));
    painter.drawRect(color);
    painter.setPen(Qt::black);
    const double gap = Mm(1);
    DrawBigLabel(painter, {color.right() + gap, inner.top(), big, inner.height()},
                 ToQt(sticker.Label));
    const double left = color.right() + 2 * gap + big;
    DrawPaintText(painter, {left, inner.top(), inner.right() - left, inner.height()},
                  sticker.Paint);
}

void DrawSheets(QPdfWriter& writer, QPainter& painter, const std::vector<Sticker>& stickers,
                const StickerSheet& sheet, int used) {
    int page = 0;
    const auto places = PlaceStickers(sheet, static_cast<int>(stickers.size()), used);
    for (std::size_t i = 0; i < stickers.size(); ++i) {
        for (; page < places[i].Page; ++page) {
            writer.newPage();
        }
        const PlanRect& box = places[i].Box;
        if (sheet.Name.empty()) {
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(Qt::gray, Mm(kGridLine)));
            painter.drawRect(MmRect(box.Left, box.Top, box.Right - box.Left, box.Bottom - box.Top));
        }
        DrawSticker(painter, box, stickers[i]);
    }
}

}  // namespace

void WriteStickerPages(const std::vector<Sticker>& stickers, const StickerSheet& sheet, int used,
                       const Target& target) {
    if (stickers.empty()) {
        throw Error("There are no paints of yours to label. Tick some in My Paints (Tools).");
    }
    WritePdf("Labels of My Paints", sheet.Paper, target,
             [&](QPdfWriter& writer, QPainter& painter) {
                 DrawSheets(writer, painter, stickers, sheet, used);
             });
}

}  // namespace vendrel
