#include <QtCore/QLineF>
#include <QtGui/QPolygonF>
#include <algorithm>
#include <cmath>
#include <string>

#include "export/page_map.h"
#include "export/pdf_pages.h"
#include "export/pdf_units.h"
#include "output/chart_contents.h"

namespace vendrel {
namespace {

using Design = PlanPageDesign;

// Light enough to vanish under paint, dark enough to follow.
const QColor kBorderInk(120, 120, 120);
const QColor kSymbolInk(70, 70, 70);
const QColor kCutInk(90, 140, 200);
constexpr double kBorderMm = 0.13;

// Where the picture stands on the page.
class PlanPage {
  public:
    PlanPage(QPainter& painter, const KitPages& kit, const PageTile& tile)
        : painter_(painter), kit_(kit), tile_(tile), sheet_(kit.Plan.Pages.Sheet) {
        const double shown = tile.Shown.Right - tile.Shown.Left;
        offset_ = {(sheet_.Width - shown) / 2 - tile.Shown.Left,
                   Design::kMargin + Design::kHeading + Design::kMarks - tile.Shown.Top};
    }

    void Draw() {
        DrawHeading();
        DrawOutlines();
        DrawSymbols();
        DrawCuts();
        DrawCropMarks();
        DrawLegend();
    }

  private:
    // From millimetres of the canvas to units of the page.
    [[nodiscard]] QPointF At(double canvasX, double canvasY) const {
        return {Mm(canvasX + offset_.X), Mm(canvasY + offset_.Y)};
    }
    [[nodiscard]] QPointF At(const PlanPoint& pixel) const {
        return At(pixel.X * kit_.Plan.MmPerPixel, pixel.Y * kit_.Plan.MmPerPixel);
    }
    [[nodiscard]] PlanRect InPixels(const PlanRect& part) const {
        const double scale = kit_.Plan.MmPerPixel;
        return {part.Left / scale, part.Top / scale, part.Right / scale, part.Bottom / scale};
    }

    void DrawHeading();
    void DrawOutlines();
    void DrawSymbols();
    void DrawCuts();
    void DrawCut(QPointF from, QPointF to);
    void DrawCropMarks();
    void DrawLegend();
    void DrawLegendEntry(int paint, QPointF corner);

    QPainter& painter_;
    const KitPages& kit_;
    const PageTile& tile_;
    SizeMm sheet_;
    PlanPoint offset_;  // from canvas to page, in millimetres
};

void PlanPage::DrawHeading() {
    const double top = Design::kMargin;
    const double left = Design::kMargin;
    painter_.setPen(Qt::black);
    painter_.setFont(TextFont(FontMm(4.4), Weight::Bold));
    const double room = sheet_.Width - 2 * left - 60 - 30;
    DrawLineOfText(painter_, MmRect(left, top, room, 6), Qt::AlignLeft,
                   ToQt("Page " + tile_.Name()));
    painter_.setFont(TextFont(FontMm(3)));
    DrawLineOfText(painter_, MmRect(left, top + 6, room, 5), Qt::AlignLeft, ToQt(kit_.Title()));
    DrawRuler(painter_, {Mm(sheet_.Width - left - 30 - 58), Mm(top + 5)});
    (void)DrawPageMap(painter_, kit_.Plan.Pages,
                      MmRect(sheet_.Width - left - 26, top, 26, Design::kHeading - 1), &tile_);
}

void PlanPage::DrawOutlines() {
    QPen pen(kBorderInk, Mm(kBorderMm));
    pen.setJoinStyle(Qt::MiterJoin);
    pen.setCapStyle(Qt::SquareCap);
    painter_.setPen(pen);
    for (const PlanLine& line : ClipLines(kit_.Plan.Lines, InPixels(tile_.Shown))) {
        QPolygonF points;
        points.reserve(static_cast<qsizetype>(line.size()));
        for (const PlanPoint& point : line) {
            points.append(At(point));
        }
        painter_.drawPolyline(points);
    }
}

void PlanPage::DrawSymbols() {
    const PlanRect own = InPixels(tile_.Own);
    const PlanRect shown = InPixels(tile_.Shown);
    const SymbolAspects aspects = kit_.Symbols.Aspects();
    painter_.setPen(kSymbolInk);
    for (const PlanLabel& label : kit_.Plan.Labels) {
        const int paint = kit_.Plan.Regions.List[static_cast<std::size_t>(label.Region)].Paint;
        if (IsLabelOn(label, aspects[static_cast<std::size_t>(paint)], own, shown)) {
            kit_.Symbols.Draw(painter_, paint, At(label.Centre),
                              Mm(label.Height * kit_.Plan.MmPerPixel));
        }
    }
}

void PlanPage::DrawCuts() {
    const PlanRect& own = tile_.Own;
    const PlanRect& shown = tile_.Shown;
    if (own.Left > shown.Left) {
        DrawCut(At(own.Left, shown.Top), At(own.Left, shown.Bottom));
    }
    if (own.Right < shown.Right) {
        DrawCut(At(own.Right, shown.Top), At(own.Right, shown.Bottom));
    }
    if (own.Top > shown.Top) {
        DrawCut(At(shown.Left, own.Top), At(shown.Right, own.Top));
    }
    if (own.Bottom < shown.Bottom) {
        DrawCut(At(shown.Left, own.Bottom), At(shown.Right, own.Bottom));
    }
}

// The line where two pages meet, with a round mark near each end that both pages show.
void PlanPage::DrawCut(QPointF from, QPointF to) {
    QPen dashes(kCutInk, Mm(0.12));
    dashes.setDashPattern({12, 12});
    painter_.setPen(dashes);
    painter_.drawLine(QLineF(from, to));
    painter_.setPen(QPen(kCutInk, Mm(0.15)));
    for (const double share : {0.2, 0.8}) {
        const QPointF at = from + (to - from) * share;
        painter_.drawEllipse(at, Mm(1.5), Mm(1.5));
        painter_.drawLine(QLineF(at - QPointF(Mm(2.2), 0), at + QPointF(Mm(2.2), 0)));
        painter_.drawLine(QLineF(at - QPointF(0, Mm(2.2)), at + QPointF(0, Mm(2.2))));
    }
}

void PlanPage::DrawCropMarks() {
    constexpr double kGap = 1;
    constexpr double kLength = 4;
    painter_.setPen(QPen(Qt::black, Mm(0.15)));
    const PlanRect& own = tile_.Own;
    const PlanRect& shown = tile_.Shown;
    for (const double x : {own.Left, own.Right}) {
        painter_.drawLine(QLineF(At(x, shown.Top - kGap - kLength), At(x, shown.Top - kGap)));
        painter_.drawLine(QLineF(At(x, shown.Bottom + kGap), At(x, shown.Bottom + kGap + kLength)));
    }
    for (const double y : {own.Top, own.Bottom}) {
        painter_.drawLine(QLineF(At(shown.Left - kGap - kLength, y), At(shown.Left - kGap, y)));
        painter_.drawLine(QLineF(At(shown.Right + kGap, y), At(shown.Right + kGap + kLength, y)));
    }
}

void PlanPage::DrawLegend() {
    const std::vector<int> paints = PaintsWithin(kit_.Plan.Regions, InPixels(tile_.Shown));
    const int columns = Design::LegendColumns(sheet_.Width);
    const int rows = (static_cast<int>(paints.size()) + columns - 1) / columns;
    const double width = (sheet_.Width - 2 * Design::kMargin) / columns;
    const double top = sheet_.Height - Design::kMargin - rows * Design::kLegendRow;
    for (std::size_t i = 0; i < paints.size(); ++i) {
        const int column = static_cast<int>(i) / rows;
        const int row = static_cast<int>(i) % rows;
        DrawLegendEntry(paints[i],
                        {Mm(Design::kMargin + column * width), Mm(top + row * Design::kLegendRow)});
    }
}

void PlanPage::DrawLegendEntry(int paint, QPointF corner) {
    const PaintColor& color = kit_.Place.State.PaintColors[static_cast<std::size_t>(paint)];
    const double height = Mm(Design::kLegendRow);
    painter_.setPen(QPen(kBorderInk, Mm(0.1)));
    painter_.setBrush(ToQt(ColorOf(color)));
    painter_.drawRect(QRectF(corner + QPointF(0, Mm(0.4)), QSizeF(Mm(6), height - Mm(0.8))));
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(Qt::black);
    kit_.Symbols.Draw(painter_, paint, corner + QPointF(Mm(8.3), height / 2), Mm(2.8));
    painter_.setFont(TextFont(FontMm(2.6)));
    DrawLineOfText(
        painter_,
        QRectF(corner + QPointF(Mm(11), 0), QSizeF(Mm(Design::kLegendColumn - 12.5), height)),
        Qt::AlignLeft, ToQt(color.PaintName + " [" + color.PaintCode + "]"));
}

}  // namespace

void DrawPlanPage(QPainter& painter, const KitPages& kit, const PageTile& tile) {
    PlanPage(painter, kit, tile).Draw();
}

}  // namespace vendrel
