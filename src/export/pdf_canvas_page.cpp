// The whole canvas on one page, for print shops: to be painted where it is printed, and wrapped
// round a frame.
#include <QtCore/QLineF>

#include "export/page_map.h"
#include "export/plan_drawing.h"
#include "plan/bleed.h"

namespace vendrel {
namespace {

using Design = PlanPageDesign;

class CanvasPage {
  public:
    CanvasPage(QPainter& painter, const KitPages& kit)
        : painter_(painter),
          kit_(kit),
          edge_(Design::kWholeCanvasEdge + kit.Settings.BleedMm),
          drawing_(painter, kit, {edge_ + kit.Plan.PictureAt.X, edge_ + kit.Plan.PictureAt.Y}) {}

    void Draw() {
        const PlanRect& all = kit_.Plan.Pages.Tiles.front().Own;
        DrawBleed();
        DrawCanvasEdge();
        drawing_.DrawOutlines(all);
        drawing_.DrawSymbols(all, all);
        DrawCropMarks();
        DrawFoot();
    }

  private:
    void DrawBleed();
    void DrawCanvasEdge();
    void DrawCropMarks();
    void DrawFoot();

    QPainter& painter_;
    const KitPages& kit_;
    double edge_;  // from the page's edge to the canvas's
    PlanDrawing drawing_;
};

// Only where the picture reaches the edge of the canvas.
void CanvasPage::DrawBleed() {
    constexpr double kReaches = 0.05;
    const PrintPlan& plan = kit_.Plan;
    const double bleed = plan.Scale.Pixels(kit_.Settings.BleedMm);
    const PlanPoint size{plan.Scale.Pixels(plan.Pages.Canvas.Width),
                         plan.Scale.Pixels(plan.Pages.Canvas.Height)};
    const Bleed carried{plan.PictureAt.X < kReaches ? bleed : 0,
                        plan.PictureAt.Y < kReaches ? bleed : 0};
    painter_.setPen(QPen(drawing_.Ink(kBorderGray), Mm(kBorderMm)));
    for (const BleedLine& line : CarryOn(plan.Lines, size, carried)) {
        painter_.drawLine(QLineF(drawing_.At(line.From), drawing_.At(line.To)));
    }
}

// Where the front of the frame ends.
void CanvasPage::DrawCanvasEdge() {
    painter_.setPen(QPen(drawing_.Ink(kBorderGray), Mm(kBorderMm)));
    painter_.drawRect(MmRect(edge_, edge_, kit_.Plan.Canvas.Width, kit_.Plan.Canvas.Height));
}

// At the corners of the canvas, beyond the bleed.
void CanvasPage::DrawCropMarks() {
    constexpr double kGap = 2;
    constexpr double kLength = 5;
    painter_.setPen(QPen(Qt::black, Mm(0.15)));
    const SizeMm& sheet = kit_.Plan.Pages.Paper.Sheet;
    const auto mark = [this](double fromX, double fromY, double toX, double toY) {
        painter_.drawLine(QLineF(Mm(fromX), Mm(fromY), Mm(toX), Mm(toY)));
    };
    const double out = Design::kWholeCanvasEdge - kGap;
    for (const double x : {edge_, sheet.Width - edge_}) {
        mark(x, out - kLength, x, out);
        mark(x, sheet.Height - out, x, sheet.Height - out + kLength);
    }
    for (const double y : {edge_, sheet.Height - edge_}) {
        mark(out - kLength, y, out, y);
        mark(sheet.Width - out, y, sheet.Width - out + kLength, y);
    }
}

// What the shop checks before it cuts this strip off.
void CanvasPage::DrawFoot() {
    const SizeMm& sheet = kit_.Plan.Pages.Paper.Sheet;
    const double top = sheet.Height - Design::kWholeCanvasEdge + 2;
    const double left = edge_ + 8;  // apart from the crop mark
    DrawRuler(painter_, {Mm(left), Mm(top + 3)}, kit_.Settings.InInches());
    painter_.setPen(Qt::black);
    painter_.setFont(TextFont(FontMm(3)));
    const QString bleed =
        kit_.Settings.BleedMm > 0
            ? QString(" and %1 mm of bleed on all sides").arg(kit_.Settings.BleedMm)
            : QString();
    const double code = kit_.Code.IsNone() ? 0 : Design::kWholeCanvasEdge;
    kit_.Code.Draw(painter_, {Mm(sheet.Width - edge_ - 4 - code), Mm(sheet.Height - code)},
                   Mm(code));
    painter_.setPen(Qt::black);
    const double room = sheet.Width - edge_ - 4 - left - 62 - code;
    DrawLineOfText(painter_, MmRect(left + 62, top, room, 6), Qt::AlignLeft,
                   ToQt(SizeText(kit_.Plan.Canvas, kit_.Settings.InInches())) + bleed +
                       "  \u2022  print at 100 %  \u2022  " + ToQt(kit_.Title()) +
                       (kit_.Code.IsNone() ? "" : "  \u2022  " + kit_.OrderLine()) +
                       ToQt(kit_.Settings.Maker.empty() ? "" : "  \u2022  " + kit_.Settings.Maker));
}

}  // namespace

void DrawCanvasPage(QPainter& painter, const KitPages& kit) {
    CanvasPage(painter, kit).Draw();
}

}  // namespace vendrel
