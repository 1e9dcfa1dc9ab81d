#include <QtCore/QLineF>
#include <QtGui/QFontMetricsF>
#include <string>

#include "export/page_map.h"
#include "export/plan_drawing.h"
#include "plan/mark_places.h"

namespace vendrel {
namespace {

using Design = PlanPageDesign;

// Beside a code the logo gives way to the page's name.
constexpr double kLeastHeading = 30;
constexpr double kWidestLogo = 31;

const QColor kFrameInk(kBorderGray, kBorderGray, kBorderGray);

// Where the picture stands on the page.
class PlanPage {
  public:
    PlanPage(QPainter& painter, const KitPages& kit, const PageTile& tile)
        : painter_(painter),
          kit_(kit),
          tile_(tile),
          paper_(kit.Plan.Pages.Paper),
          sheet_(paper_.Sheet),
          drawing_(painter, kit,
                   {Design::kLeft - tile.Shown.Left, Design::kPictureTop - tile.Shown.Top}) {}

    void Draw() {
        DrawHeading();
        drawing_.DrawOutlines(tile_.Shown);
        DrawCuts();
        drawing_.DrawSymbols(tile_.Own, tile_.Shown);
        DrawCropMarks();
        DrawLegend();
    }

  private:
    // From millimetres of the picture to units of the page.
    [[nodiscard]] QPointF At(double x, double y) const { return drawing_.At(x, y); }
    [[nodiscard]] int SymbolOf(int paint) const { return drawing_.SymbolOf(paint); }
    [[nodiscard]] QString PageCount() const;
    void DrawHeading();
    double DrawLogo(double right, double top);
    double DrawCode(double left, double top);
    void DrawOrder(double left, double top, double room);
    void DrawCuts();
    void DrawCut(const CutLine& cut);
    void DrawCropMarks();
    void DrawLegend();
    void DrawLegendEntry(int paint, const QRectF& box);

    QPainter& painter_;
    const KitPages& kit_;
    const PageTile& tile_;
    const PaperChoice& paper_;
    SizeMm sheet_;
    PlanDrawing drawing_;
};

QString PlanPage::PageCount() const {
    const PagePlan& pages = kit_.Plan.Pages;
    return QString("   (%1 of %2)")
        .arg(tile_.Row * pages.Across + tile_.Column + 1)
        .arg(pages.Tiles.size());
}

// Ends at `right`; answers how wide it is, in millimeters.
double PlanPage::DrawLogo(double right, double top) {
    if (kit_.Logo.isNull()) {
        return 0;
    }
    const QSizeF size =
        QSizeF(kit_.Logo.size()).scaled({28, Design::kHeading - 3}, Qt::KeepAspectRatio);
    painter_.drawImage(MmRect(right - size.width(), top, size.width(), size.height()), kit_.Logo);
    return size.width() + 3;
}

// Answers how wide it is, in millimeters; its rim reaches into the margin.
double PlanPage::DrawCode(double left, double top) {
    if (kit_.Code.IsNone()) {
        return 0;
    }
    constexpr double kRimMm = 1.5;
    constexpr double kSide = Design::kHeading + kRimMm;
    kit_.Code.Draw(painter_, {Mm(left - kRimMm), Mm(top - kRimMm)}, Mm(kSide));
    return kSide - kRimMm;
}

// The number stands below the page's name.
void PlanPage::DrawOrder(double left, double top, double room) {
    if (kit_.Code.IsNone()) {
        return;
    }
    painter_.setPen(Qt::black);
    painter_.setFont(TextFont(FontMm(3)));
    DrawLineOfText(painter_, MmRect(left, top + 9.6, room, 4), Qt::AlignLeft, kit_.OrderLine());
}

void PlanPage::DrawHeading() {
    const double top = Design::kMargin;
    const double right = sheet_.Width - Design::kMargin;
    const double left = Design::kLeft + DrawCode(Design::kLeft, top);
    const double all = right - left - 62 - 30;
    const bool cramped = !kit_.Code.IsNone() && all < kLeastHeading + kWidestLogo;
    painter_.setPen(kit_.Ink());
    painter_.setFont(TextFont(FontMm(4.4), Weight::Bold));
    const double room = all - (cramped ? 0 : DrawLogo(right - 30 - 62, top));
    DrawLineOfText(painter_, MmRect(left, top, room, 6), Qt::AlignLeft,
                   ToQt("Page " + tile_.Name()) + PageCount());
    painter_.setPen(Qt::black);
    painter_.setFont(TextFont(FontMm(3)));
    DrawLineOfText(painter_, MmRect(left, top + (kit_.Code.IsNone() ? 6 : 5.4), room, 5),
                   Qt::AlignLeft,
                   ToQt(kit_.Title() +
                        (kit_.Settings.Maker.empty() ? "" : "  \u2022  " + kit_.Settings.Maker)));
    DrawOrder(left, top, room);
    DrawRuler(painter_, {Mm(right - 30 - 58), Mm(top + 5)}, kit_.Settings.InInches());
    (void)DrawPageMap(painter_, kit_.Plan.Pages, MmRect(right - 26, top, 26, Design::kHeading - 1),
                      &tile_);
}

// Below the symbols, which must stay legible, but over the outlines, which run along the cuts.
void PlanPage::DrawCuts() {
    const PlanRect& own = tile_.Own;
    if (tile_.Column > 0) {
        DrawCut({{own.Left, own.Top}, {own.Left, own.Bottom}});
    }
    if (tile_.Column + 1 < kit_.Plan.Pages.Across) {
        DrawCut({{own.Right, own.Top}, {own.Right, own.Bottom}});
    }
    if (tile_.Row > 0) {
        DrawCut({{own.Left, own.Top}, {own.Right, own.Top}});
    }
    if (tile_.Row + 1 < kit_.Plan.Pages.Down) {
        DrawCut({{own.Left, own.Bottom}, {own.Right, own.Bottom}});
    }
}

// The line where two pages meet, with two round marks that both pages show.
void PlanPage::DrawCut(const CutLine& cut) {
    constexpr double kCircle = 1.5;
    constexpr double kCross = 2.2;
    constexpr double kAir = 0.3;
    QPen dashes(kCutInk, Mm(0.2));
    dashes.setDashPattern({8, 8});
    painter_.setPen(dashes);
    painter_.drawLine(QLineF(At(cut.From.X, cut.From.Y), At(cut.To.X, cut.To.Y)));
    painter_.setPen(QPen(kCutInk, Mm(0.15)));
    for (const PlanPoint& mark : PlaceMarks(cut, kCross + kAir, kit_.SymbolBoxes)) {
        const QPointF at = At(mark.X, mark.Y);
        painter_.drawEllipse(at, Mm(kCircle), Mm(kCircle));
        painter_.drawLine(QLineF(at - QPointF(Mm(kCross), 0), at + QPointF(Mm(kCross), 0)));
        painter_.drawLine(QLineF(at - QPointF(0, Mm(kCross)), at + QPointF(0, Mm(kCross))));
    }
}

// Only where a page is cut: what stays on to the right and below carries the next page.
void PlanPage::DrawCropMarks() {
    constexpr double kGap = 1;
    constexpr double kLength = 4;
    painter_.setPen(QPen(Qt::black, Mm(0.15)));
    const PlanRect& own = tile_.Own;
    const PlanRect& shown = tile_.Shown;
    if (tile_.Column > 0) {
        const double x = own.Left;
        painter_.drawLine(QLineF(At(x, shown.Top - kGap - kLength), At(x, shown.Top - kGap)));
        painter_.drawLine(QLineF(At(x, shown.Bottom + kGap), At(x, shown.Bottom + kGap + kLength)));
    }
    if (tile_.Row > 0) {
        const double y = own.Top;
        painter_.drawLine(QLineF(At(shown.Left - kGap - kLength, y), At(shown.Left - kGap, y)));
        painter_.drawLine(QLineF(At(shown.Right + kGap, y), At(shown.Right + kGap + kLength, y)));
    }
}

void PlanPage::DrawLegend() {
    const std::vector<int> paints = kit_.Plan.Paints.Within(InPixels(tile_.Own, kit_.Plan.Scale));
    const bool beside = paper_.Beside > 0;
    const int rows = Design::LegendRows(paper_, static_cast<int>(paints.size()));
    const double width = Design::ListWidth(paper_) / paper_.ListColumns;
    const double left = beside ? sheet_.Width - Design::kMargin - paper_.Beside : Design::kLeft;
    const double top = beside ? Design::kPictureTop + Design::kLegendTitle
                              : sheet_.Height - Design::kMargin - rows * Design::kLegendRow;
    // The page's heading goes with the top margin where that is cut off; the list has its own.
    painter_.setPen(Qt::black);
    painter_.setFont(TextFont(FontMm(3), Weight::Bold));
    DrawLineOfText(painter_, MmRect(left, top - 4.2, Design::ListWidth(paper_), 4), Qt::AlignLeft,
                   ToQt("Page " + tile_.Name()));
    for (std::size_t i = 0; i < paints.size(); ++i) {
        const int column = static_cast<int>(i) / rows;
        const int row = static_cast<int>(i) % rows;
        DrawLegendEntry(paints[i], MmRect(left + column * width, top + row * Design::kLegendRow,
                                          width, Design::kLegendRow));
    }
}

// Names alone: the chart has the codes, and beside long names there is no room for them.
void PlanPage::DrawLegendEntry(int paint, const QRectF& box) {
    const PaintColor& color = kit_.Place.State->PaintColors[paint];
    const QPointF corner = box.topLeft();
    painter_.setPen(QPen(kFrameInk, Mm(0.1)));
    painter_.setBrush(ToQt(ColorOf(color)));
    painter_.drawRect(QRectF(corner + QPointF(0, Mm(0.4)), QSizeF(Mm(5), box.height() - Mm(0.8))));
    painter_.setBrush(Qt::NoBrush);
    painter_.setPen(Qt::black);
    kit_.Symbols.DrawInLine(painter_, SymbolOf(paint), corner + QPointF(Mm(8), box.height() / 2),
                            Mm(2));
    const QRectF text = box.adjusted(Mm(11), 0, -Mm(1), 0);
    const QString name = ToQt(color.PaintName);
    // Smaller rather than cut short.
    double size = 2.6;
    painter_.setFont(TextFont(FontMm(size)));
    while (size > 2.1 && QFontMetricsF(painter_.font(), painter_.device()).horizontalAdvance(name) >
                             text.width()) {
        size -= 0.1;
        painter_.setFont(TextFont(FontMm(size)));
    }
    DrawLineOfText(painter_, text, Qt::AlignLeft, name);
}

}  // namespace

void DrawPlanPage(QPainter& painter, const KitPages& kit, const PageTile& tile) {
    if (kit.Settings.Sheet.IsCanvas()) {
        DrawCanvasPage(painter, kit);
    } else {
        PlanPage(painter, kit, tile).Draw();
    }
}

}  // namespace vendrel
