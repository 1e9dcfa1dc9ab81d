#include "export/color_chart_image.h"

#include <QtGui/QImage>
#include <algorithm>
#include <span>

#include "convert/bitmap_writer.h"
#include "export/chart_drawing.h"
#include "export/print_fonts.h"
#include "export/qt_image.h"
#include "output/symbol_set.h"

namespace vendrel {
namespace {

// The glyphs' ink lies within these columns and rows, counted from where they are stamped.
constexpr QRect kGlyphFrame(-2, -3, 10, 15);
// Middle of capitals and digits, which stand in the middle of a line; small letters hang below it.
constexpr double kMiddleRow = 3.5;

// Whole squares, so that the enlarged symbol has the very shape that the sheet shows.
void DrawGlyph(QPainter& painter, std::span<const GlyphPoint> ink, const QRectF& box) {
    const int scale = std::max(1, static_cast<int>(box.height()) / kGlyphFrame.height());
    const int left = static_cast<int>(box.center().x()) - scale * kGlyphFrame.width() / 2;
    const int top = static_cast<int>(box.center().y() - scale * kMiddleRow);  // of row 0
    for (const GlyphPoint& point : ink) {
        painter.fillRect(left + scale * (point.X - kGlyphFrame.left()), top + scale * point.Y,
                         scale, scale, Qt::black);
    }
}

QImage DrawChartImage(const WorkState& state) {
    ColorChart chart = MakeColorChart(state);
    chart.DrawSymbol = [&state](QPainter& painter, int symbol, const QRectF& box) {
        DrawGlyph(painter, InkOf(state, symbol), box);
    };
    QImage image(kChartWidth, kChartHeight, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    DrawColorChart(painter, chart);
    return image;
}

}  // namespace

void WriteColorChart(const WorkState& state, const Target& target) {
    WriteBitmap(target, ToSurface(DrawChartImage(state)), kChartScale);
}

}  // namespace vendrel
