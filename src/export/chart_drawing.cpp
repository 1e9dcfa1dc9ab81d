#include "export/chart_drawing.h"

#include <QtGui/QFontMetricsF>
#include <algorithm>

#include "export/print_fonts.h"
#include "kitset/kit_mark.h"
#include "output/cell_numbering.h"

namespace vendrel {
namespace {

constexpr double kChartMargin = 150;
constexpr double kChartTop = 380;  // of the first line
constexpr double kHeadingHeight = 60;
constexpr double kTallestRow = 96;  // a short palette is not stretched over the page
const QColor kChartRule(200, 200, 200);
const QColor kChartFaint(110, 110, 110);

// Left edge and width of the columns.
struct ChartColumn {
    double Left;
    double Width;
};
constexpr ChartColumn kSwatchColumn{kChartMargin, 220};
constexpr ChartColumn kSymbolColumn{400, 110};
constexpr ChartColumn kPaintColumn{540, 1230};
constexpr ChartColumn kStipplesColumn{1790, 270};
constexpr ChartColumn kShareColumn{2080, kChartWidth - kChartMargin - 2080};

QRectF CellOf(const ChartColumn& column, double top, double height) {
    return {column.Left, top, column.Width, height};
}

void DrawElided(QPainter& painter, const QRectF& cell, int flags, const QString& text) {
    const QString shown = QFontMetricsF(painter.font(), painter.device())
                              .elidedText(text, Qt::ElideRight, cell.width());
    painter.drawText(cell, flags | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

void DrawChartHeading(QPainter& painter, const ColorChart& chart) {
    const double width = kChartWidth - 2 * kChartMargin;
    painter.setFont(TextFont(84, Weight::Bold));
    DrawElided(painter, {kChartMargin, 120, width, 110}, Qt::AlignLeft, chart.Title);
    painter.setFont(TextFont(44));
    painter.setPen(kChartFaint);
    DrawElided(painter, {kChartMargin, 230, width, 60}, Qt::AlignLeft, chart.Subtitle);
}

void DrawColumnHeads(QPainter& painter) {
    painter.setFont(TextFont(32));
    painter.setPen(kChartFaint);
    const double top = kChartTop - kHeadingHeight;
    DrawElided(painter, CellOf(kSwatchColumn, top, kHeadingHeight), Qt::AlignLeft, "Color");
    DrawElided(painter, CellOf(kSymbolColumn, top, kHeadingHeight), Qt::AlignHCenter, "Symbol");
    DrawElided(painter, CellOf(kPaintColumn, top, kHeadingHeight), Qt::AlignLeft, "Paint");
    DrawElided(painter, CellOf(kStipplesColumn, top, kHeadingHeight), Qt::AlignRight, "Stipples");
    DrawElided(painter, CellOf(kShareColumn, top, kHeadingHeight), Qt::AlignRight, "Share");
}

// A little smaller rather than cut short: the code at the end is what a painter orders by.
QFont FittingFont(const QPainter& painter, double width, int size, const QString& text) {
    constexpr double kSmallest = 0.7;
    const double needed =
        QFontMetricsF(TextFont(size), painter.device()).horizontalAdvance(text) / width;
    return TextFont(needed <= 1 ? size
                                : static_cast<int>(size * std::max(kSmallest, 0.99 / needed)));
}

void DrawChartRow(QPainter& painter, const ColorChart& chart, const ChartRow& row, double top,
                  double height) {
    const double pad = height * 0.08;
    painter.fillRect(QRectF(kChartMargin, top - 1, kChartWidth - 2 * kChartMargin, 2), kChartRule);
    const QRectF swatch = CellOf(kSwatchColumn, top, height).adjusted(0, pad, 0, -pad);
    painter.setPen(QPen(kChartFaint, 2));  // a pale paint needs an edge on white paper
    painter.drawRect(swatch.adjusted(1, 1, -1, -1));
    painter.setPen(Qt::black);
    chart.FillSwatch(row.Swatch, swatch);
    chart.DrawSymbol(painter, row.Symbol,
                     CellOf(kSymbolColumn, top, height).adjusted(0, pad, 0, -pad));
    const int size = static_cast<int>(std::min(height * 0.62, 46.0));
    const QRectF label = CellOf(kPaintColumn, top, height);
    painter.setFont(FittingFont(painter, label.width(), size, ToQt(row.Label)));
    DrawElided(painter, label, Qt::AlignLeft, ToQt(row.Label));
    painter.setFont(TextFont(size));
    DrawElided(painter, CellOf(kStipplesColumn, top, height), Qt::AlignRight,
               QString::number(row.Stipples));
    DrawElided(painter, CellOf(kShareColumn, top, height), Qt::AlignRight,
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
    DrawChartHeading(painter, chart);
    DrawColumnHeads(painter);
    const double count = std::max<double>(1, static_cast<double>(chart.Rows.size()));
    const double height = std::min(kTallestRow, (kChartHeight - kChartMargin - kChartTop) / count);
    double top = kChartTop;
    for (const ChartRow& row : chart.Rows) {
        DrawChartRow(painter, chart, row, top, height);
        top += height;
    }
}

}  // namespace vendrel
