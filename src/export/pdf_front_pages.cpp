// The pages before the plan: cover, color chart and page map.
#include <QtGui/QImage>
#include <algorithm>
#include <cmath>

#include "export/chart_drawing.h"
#include "export/page_map.h"
#include "export/pdf_pages.h"
#include "export/pdf_units.h"
#include "export/qt_image.h"

namespace vendrel {
namespace {

constexpr double kMargin = 15;
const QColor kFaint(90, 90, 90);

QSizeF Fitted(const Surface& picture, const QSizeF& room) {
    return QSizeF(picture.Width(), picture.Height()).scaled(room, Qt::KeepAspectRatio);
}

void DrawPicture(QPainter& painter, const Surface& picture, const QRectF& at) {
    painter.drawImage(at, ToImage(picture));
    painter.setPen(QPen(kFaint, Mm(0.1)));
    painter.drawRect(at);
}

QString Centimetres(const SizeMm& size) {
    return QString("%1 \u00d7 %2 cm")
        .arg(size.Width / 10, 0, 'f', 1)
        .arg(size.Height / 10, 0, 'f', 1);
}

QString KitSummary(const KitPages& kit) {
    const WorkState& state = kit.Place.State;
    return QString("%1 paints  \u2022  canvas %2  \u2022  plan on %3 %4")
        .arg(state.PaintCount)
        .arg(Centimetres(kit.Plan.Pages.Canvas))
        .arg(kit.Plan.Pages.Tiles.size())
        .arg(kit.Plan.Pages.Tiles.size() == 1 ? "page" : "pages");
}

void DrawCaption(QPainter& painter, const QRectF& picture, const QString& text) {
    painter.setFont(TextFont(FontMm(3.5)));
    painter.setPen(kFaint);
    painter.drawText(QRectF(picture.left(), picture.bottom() + Mm(1), picture.width(), Mm(6)),
                     Qt::AlignLeft | Qt::AlignVCenter, text);
}

const char* const kSteps[] = {
    "1.  Print all pages at their actual size (100 %), never fitted to the paper.",
    "2.  Measure the ruler below: it must be exactly 5 cm long.",
    "3.  Trim each page along its crop marks on its left and its top, where it will lie on a page",
    "     that was laid before it.",
    "4.  Lay the round marks of neighbouring pages over one another and glue the pages together,",
    "     row by row, as the map shows.",
    "5.  Glue the plan onto the canvas or board, or trace it, and fill every outline with the",
    "     paint of its symbol. Small letters are underlined, so that c and C stay apart.",
};

double DrawSteps(QPainter& painter, double top, double width) {
    painter.setFont(TextFont(FontMm(3.6)));
    painter.setPen(Qt::black);
    for (const char* step : kSteps) {
        DrawLineOfText(painter, QRectF(Mm(kMargin), top, width, Mm(6)), Qt::AlignLeft, step);
        top += Mm(6);
    }
    return top;
}

}  // namespace

std::string KitPages::Title() const {
    return Place.State.PictureName + ", " + std::string(DifficultyWord(Place.MainMenu));
}

void DrawCoverPage(QPainter& painter, const KitPages& kit) {
    const double width = Mm(kit.FrontPaper.Width - 2 * kMargin);
    const double bottom = Mm(kit.FrontPaper.Height - kMargin);
    painter.setPen(Qt::black);
    painter.setFont(TextFont(FontMm(11), Weight::Bold));
    DrawLineOfText(painter, {Mm(kMargin), Mm(kMargin), width, Mm(16)}, Qt::AlignLeft,
                   ToQt(kit.Title()));
    painter.setFont(TextFont(FontMm(4.5)));
    painter.setPen(kFaint);
    DrawLineOfText(painter, {Mm(kMargin), Mm(kMargin + 16), width, Mm(8)}, Qt::AlignLeft,
                   KitSummary(kit));

    const double top = Mm(kMargin + 28);
    const double room = bottom - top - Mm(16);  // for both pictures without their captions
    const Surface& painting = kit.Place.Frames.WorkFrame.Picture;
    const QRectF large(QPointF(Mm(kMargin), top), Fitted(painting, {width, room * 0.62}));
    painter.setRenderHint(QPainter::LosslessImageRendering);
    DrawPicture(painter, painting, large);
    painter.setRenderHint(QPainter::LosslessImageRendering, false);
    DrawCaption(painter, large, "The painting");

    const Surface& photo = kit.Place.Frames.CaptureFrame.Picture;
    if (photo.Empty()) {
        return;
    }
    const QRectF small(QPointF(Mm(kMargin), large.bottom() + Mm(9)),
                       Fitted(photo, {width, bottom - large.bottom() - Mm(16)}));
    DrawPicture(painter, photo, small);
    DrawCaption(painter, small, "The photo");
}

void DrawChartPage(QPainter& painter, const KitPages& kit) {
    ColorChart chart = MakeColorChart(kit.Place);
    chart.DrawSymbol = [&kit](QPainter& on, int paint, const QRectF& box) {
        kit.Symbols.Draw(on, paint, box.center(), std::min(box.height() * 0.8, 50.0));
    };
    const double scale =
        std::min(Mm(kit.FrontPaper.Width) / kChartWidth, Mm(kit.FrontPaper.Height) / kChartHeight);
    painter.save();
    painter.translate((Mm(kit.FrontPaper.Width) - kChartWidth * scale) / 2, 0);
    painter.scale(scale, scale);
    DrawColorChart(painter, chart);
    painter.restore();
}

void DrawMapPage(QPainter& painter, const KitPages& kit) {
    const double width = Mm(kit.FrontPaper.Width - 2 * kMargin);
    painter.setPen(Qt::black);
    painter.setFont(TextFont(FontMm(7), Weight::Bold));
    DrawLineOfText(painter, {Mm(kMargin), Mm(kMargin), width, Mm(12)}, Qt::AlignLeft,
                   "Putting the plan together");
    const double top = DrawSteps(painter, Mm(kMargin + 16), width);
    DrawRuler(painter, {Mm(kMargin), top + Mm(8)});
    const QRectF box(Mm(kMargin), top + Mm(22), width,
                     Mm(kit.FrontPaper.Height - kMargin) - top - Mm(22));
    painter.setOpacity(0.45);
    painter.drawImage(PageMapRect(kit.Plan.Pages, box),
                      ToImage(kit.Place.Frames.WorkFrame.Picture));
    painter.setOpacity(1);
    DrawPageMap(painter, kit.Plan.Pages, box, nullptr);
}

}  // namespace vendrel
