#include "export/plan_drawing.h"

#include <QtCore/QLineF>
#include <QtGui/QPolygonF>
#include <algorithm>

#include "shell/symbol_of.h"

namespace vendrel {

int PlanDrawing::SymbolOf(int paint) const {
    return vendrel::SymbolOf(kit_.Place.State->PaintColors, paint);
}

QColor PlanDrawing::Ink(int usual) const {
    return ToQt(PlanInk(usual, kit_.Settings.Gray));
}

void PlanDrawing::DrawOutlines(const PlanRect& part) {
    QPen pen(Ink(kBorderGray), Mm(kBorderMm));
    pen.setJoinStyle(Qt::MiterJoin);
    pen.setCapStyle(Qt::SquareCap);
    painter_.setPen(pen);
    const PlanRect shown = InPixels(part, kit_.Plan.Scale);
    for (const PlanChain& chain : kit_.Plan.Lines.Chains) {
        for (const PlanLine& line : ClipLine(chain.Points, shown)) {
            QPolygonF points;
            points.reserve(static_cast<qsizetype>(line.size()));
            for (const PlanPoint& point : line) {
                points.append(At(point));
            }
            painter_.drawPolyline(points);
        }
    }
}

void PlanDrawing::DrawSymbols(const PlanRect& ownPart, const PlanRect& shownPart) {
    const PlanRect own = InPixels(ownPart, kit_.Plan.Scale);
    const PlanRect shown = InPixels(shownPart, kit_.Plan.Scale);
    painter_.setPen(Ink(kSymbolGray));
    for (const PlanLabel& label : kit_.Plan.Labels) {
        const int paint = kit_.Plan.Regions[label.Region].Value;
        if (IsLabelOn(label, kit_.Plan.Aspects[paint], own, shown)) {
            kit_.Symbols.Draw(painter_, SymbolOf(paint), At(label.Centre),
                              Mm(kit_.Plan.Scale.Mm(label.Height)));
            DrawLeader(label, kit_.Plan.Aspects[paint]);
        }
    }
}

// With a dot at its end, so that nobody takes the symbol for that of the area around it.
void PlanDrawing::DrawLeader(const PlanLabel& label, double aspect) {
    constexpr double kDot = 0.3;
    if (!label.PointsAt) {
        return;
    }
    const PlanLine leader = LeaderOf(label, aspect);
    const QColor ink = painter_.pen().color();
    painter_.save();
    painter_.setPen(QPen(ink, Mm(kBorderMm)));
    painter_.drawLine(QLineF(At(leader.front()), At(leader.back())));
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(ink);
    painter_.drawEllipse(At(leader.back()), Mm(kDot), Mm(kDot));
    painter_.restore();
}

}  // namespace vendrel
