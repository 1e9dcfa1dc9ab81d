#include "export/color_chart_image.h"

#include <QtCore/QBuffer>
#include <QtGui/QImage>
#include <algorithm>
#include <array>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "export/chart_drawing.h"
#include "export/print_fonts.h"
#include "export/qt_image.h"
#include "output/symbol_set.h"
#include "support/error.h"
#include "support/whole_file.h"

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

struct Swatch {
    Color Paint;
    QRect Box;
};

struct Chart {
    QImage Page{kChartWidth, kChartHeight, QImage::Format_Grayscale8};
    std::vector<Swatch> Swatches;  // still white in their edges
};

Chart DrawChart(const WorkState& state) {
    ColorChart chart = MakeColorChart(state);
    Chart drawn;
    chart.FillSwatch = [&drawn](Color paint, const QRectF& box) {
        drawn.Swatches.push_back({paint, box.toAlignedRect()});
    };
    chart.DrawSymbol = [&state](QPainter& painter, int symbol, const QRectF& box) {
        DrawGlyph(painter, InkOf(state, symbol), box);
    };
    drawn.Page.fill(Qt::white);
    QPainter painter(&drawn.Page);
    DrawColorChart(painter, chart);
    return drawn;
}

// The shades of gray that leave room for the swatches among 256 colors.
QList<QRgb> ShadesBeside(std::size_t swatches) {
    const int last = 255 - static_cast<int>(swatches);
    QList<QRgb> shades;
    for (int i = 0; i <= last; ++i) {
        const int gray = (510 * i + last) / (2 * last);
        shades.append(qRgb(gray, gray, gray));
    }
    return shades;
}

void ShiftToShades(QImage& page, int count) {
    std::array<uchar, 256> shadeOf{};
    for (std::size_t gray = 0; gray < shadeOf.size(); ++gray) {
        shadeOf.at(gray) =
            static_cast<uchar>((2 * static_cast<int>(gray) * (count - 1) + 255) / 510);
    }
    for (int y = 0; y < page.height(); ++y) {
        const std::span row(page.scanLine(y), static_cast<std::size_t>(page.width()));
        std::ranges::transform(row, row.begin(), [&](uchar gray) { return shadeOf[gray]; });
    }
}

// Between the two sides of its edge, which is drawn; the page around is as white as the swatch.
void FillWithin(QImage& page, const QRect& box, uchar white, uchar fill) {
    const auto left = static_cast<std::size_t>(box.left());
    for (int y = std::max(0, box.top()); y <= std::min(box.bottom(), page.height() - 1); ++y) {
        const std::span row(page.scanLine(y) + left, static_cast<std::size_t>(box.width()));
        const auto isDrawn = [white](uchar pixel) { return pixel != white; };
        const auto from = std::ranges::find_if(row, isDrawn);
        const auto to = std::find_if(row.rbegin(), row.rend(), isDrawn).base();
        if (from < to) {
            std::replace(from, to, white, fill);
        }
    }
}

// A byte a pixel: a page that is gray but for some swatches is a third as large so.
QImage InOwnColors(Chart chart) {
    QList<QRgb> colors = ShadesBeside(chart.Swatches.size());
    const auto shades = static_cast<int>(colors.size());
    QImage page = std::move(chart.Page);
    ShiftToShades(page, shades);
    for (const Swatch& swatch : chart.Swatches) {
        FillWithin(page, swatch.Box, static_cast<uchar>(shades - 1),
                   static_cast<uchar>(colors.size()));
        colors.append(ToQt(swatch.Paint).rgb());
    }
    page.reinterpretAsFormat(QImage::Format_Indexed8);
    page.setColorTable(colors);
    return page;
}

std::shared_ptr<const QByteArray> BitmapOf(QImage page) {
    page.setDotsPerMeterX(kChartScale.PixelsPerMeter());
    page.setDotsPerMeterY(kChartScale.PixelsPerMeter());
    auto bytes = std::make_shared<QByteArray>();
    QBuffer buffer(bytes.get());
    buffer.open(QIODevice::WriteOnly);
    if (!page.save(&buffer, "BMP")) {
        throw Error(
            "There is not enough memory for the color chart. Close other programs and try "
            "again.");
    }
    return bytes;
}

}  // namespace

void WriteColorChart(const WorkState& state, const Target& target) {
    const std::shared_ptr<const QByteArray> bitmap = BitmapOf(InOwnColors(DrawChart(state)));
    const auto bytes =
        std::as_bytes(std::span(bitmap->constData(), static_cast<std::size_t>(bitmap->size())));
    WholeFile file(target);
    if (target.Watcher != nullptr) {
        target.Watcher->See(bytes, bitmap);
    }
    file.Write(bytes);
    file.Commit();
}

}  // namespace vendrel
