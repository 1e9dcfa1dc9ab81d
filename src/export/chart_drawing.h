#pragma once

#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QPainter>
#include <functional>
#include <vector>

#include "output/chart_contents.h"
#include "shell/work_state.h"

namespace vendrel {

/// An A4 page at 300 dots per inch.
inline constexpr int kChartWidth = 2480;
inline constexpr int kChartHeight = 3508;

/// One page that lists the paints of a kit.
struct ColorChart {
    QString Title;
    QString Subtitle;
    std::vector<ChartRow> Rows;
    /// Fills a swatch within the edge that is drawn along its box.
    std::function<void(Color, const QRectF& box)> FillSwatch;
    /// Draws a symbol in black into a box.
    std::function<void(QPainter&, int symbol, const QRectF& box)> DrawSymbol;
};

/// The chart of the grid as it is now; counts the stipples. FillSwatch and DrawSymbol stay empty.
[[nodiscard]] ColorChart MakeColorChart(const WorkState& state);

/// Draws the chart in shades of gray onto kChartWidth x kChartHeight white units: one line per
/// paint, up to 50 of them, with names cut short rather than running into their neighbours.
void DrawColorChart(QPainter& painter, const ColorChart& chart);

}  // namespace vendrel
