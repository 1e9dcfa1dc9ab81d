#include "export/chart_drawing.h"

#include <QtGui/QFontMetricsF>
#include <algorithm>

#include "export/print_fonts.h"
#include "kitset/kit_mark.h"
#include "output/cell_numbering.h"

namespace vendrel {
namespace {

constexpr double kMargin = 150;
constexpr double kTop = 380;  // of the first line
constexpr double kHeadingHeight = 60;
constexpr double kTallestRow = 96;  // a short palette is not stretched over the page
const QColor kRule(200, 200, 200);
const QColor kFaint(110, 110, 110);

// Left edge and width of the columns.
struct Column {
    double Left;
    double Width;
};
constexpr Column kSwatch{kMargin, 220};
constexpr Column kSymbol{400, 110};
constexpr Column kPaint{540, 1230};
constexpr Column kStipples{1790, 270};
constexpr Column kShare{2080, kChartWidth - kMargin - 2080};

QRectF CellOf(const Column& column, double top, double height) {
    return {column.Left, top, column.Width, height};
}

void DrawElided(QPainter& painter, const QRectF& cell, int flags, const QString& text) {
    const QString shown = QFontMetricsF(painter.font(), painter.device())
                              .elidedText(text, Qt::ElideRight, cell.width());
    painter.drawText(cell, flags | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

void DrawHeading(QPainter& painter, const ColorChart& chart) {
    const double width = kChartWidth - 2 * kMargin;
    painter.setFont(TextFont(84, Weight::Bold));
    DrawElided(painter, {kMargin, 120, width, 110}, Qt::AlignLeft, chart.Title);
    painter.setFont(TextFont(44));
    painter.setPen(kFaint);
    DrawElided(painter, {kMargin, 230, width, 60}, Qt::AlignLeft, chart.Subtitle);
}

void DrawColumnHeads(QPainter& painter) {
    painter.setFont(TextFont(32));
    painter.setPen(kFaint);
    const double top = kTop - kHeadingHeight;
    DrawElided(painter, CellOf(kSwatch, top, kHeadingHeight), Qt::AlignLeft, "Color");
    DrawElided(painter, CellOf(kSymbol, top, kHeadingHeight), Qt::AlignHCenter, "Symbol");
    DrawElided(painter, CellOf(kPaint, top, kHeadingHeight), Qt::AlignLeft, "Paint");
    DrawElided(painter, CellOf(kStipples, top, kHeadingHeight), Qt::AlignRight, "Stipples");
    DrawElided(painter, CellOf(kShare, top, kHeadingHeight), Qt::AlignRight, "Share");
}

// A little smaller rather than cut short: the code at the end is what a painter orders by.
QFont FittingFont(const QPainter& painter, double width, int size, const QString& text) {
    constexpr double kSmallest = 0.7;
    const double needed =
        QFontMetricsF(TextFont(size), painter.device()).horizontalAdvance(text) / width;
    return TextFont(needed <= 1 ? size
                                : static_cast<int>(size * std::max(kSmallest, 0.99 / needed)));
}

void DrawRow(QPainter& painter, const ColorChart& chart, const ChartRow& row, double top,
             double height) {
    const double pad = height * 0.08;
    painter.fillRect(QRectF(kMargin, top - 1, kChartWidth - 2 * kMargin, 2), kRule);
    const QRectF swatch = CellOf(kSwatch, top, height).adjusted(0, pad, 0, -pad);
    painter.setPen(QPen(kFaint, 2));  // a pale paint needs an edge on white paper
    painter.drawRect(swatch.adjusted(1, 1, -1, -1));
    painter.setPen(Qt::black);
    chart.FillSwatch(row.Swatch, swatch);
    chart.DrawSymbol(painter, row.Symbol, CellOf(kSymbol, top, height).adjusted(0, pad, 0, -pad));
    const int size = static_cast<int>(std::min(height * 0.62, 46.0));
    const QRectF label = CellOf(kPaint, top, height);
    painter.setFont(FittingFont(painter, label.width(), size, ToQt(row.Label)));
    DrawElided(painter, label, Qt::AlignLeft, ToQt(row.Label));
    painter.setFont(TextFont(size));
    DrawElided(painter, CellOf(kStipples, top, height), Qt::AlignRight,
               QString::number(row.Stipples));
    DrawElided(painter, CellOf(kShare, top, height), Qt::AlignRight,
               ToQt(ShareText(row.ShareTenths)));
}

}  // namespace

ColorChart MakeColorChart(const WorkState& state) {
    RequireSymbols(state);
    ColorChart chart;
    chart.Rows = ListChart(state, state);
    const std::string word(DifficultyWord(state));
    chart.Title = ToQt(PrintedName(state));
    chart.Subtitle = QString("Color chart  \u2022  %1  \u2022  %2 %3  \u2022  kit %4")
                         .arg(ToQt(word))
                         .arg(chart.Rows.size())
                         .arg(chart.Rows.size() == 1 ? "paint" : "paints")
                         .arg(ToQt(KitMark(state, state, state)));
    return chart;
}

void DrawColorChart(QPainter& painter, const ColorChart& chart) {
    painter.setPen(Qt::black);
    DrawHeading(painter, chart);
    DrawColumnHeads(painter);
    const double count = std::max<double>(1, static_cast<double>(chart.Rows.size()));
    const double height = std::min(kTallestRow, (kChartHeight - kMargin - kTop) / count);
    double top = kTop;
    for (const ChartRow& row : chart.Rows) {
        DrawRow(painter, chart, row, top, height);
        top += height;
    }
}

}  // namespace vendrel
