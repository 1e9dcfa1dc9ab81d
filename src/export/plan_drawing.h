#pragma once

#include <QtGui/QPainter>

#include "export/pdf_pages.h"
#include "export/pdf_units.h"
#include "plan/plan_pen.h"

namespace vendrel {

inline const QColor kCutInk(90, 140, 200);

/// A part of the plan at its place on a page.
class PlanDrawing {
  public:
    /// `offset` is where the canvas's picture begins on the page, in millimetres.
    PlanDrawing(QPainter& painter, const KitPages& kit, const PlanPoint& offset)
        : painter_(painter), kit_(kit), offset_(offset) {}

    /// From millimetres of the picture to units of the page.
    [[nodiscard]] QPointF At(double x, double y) const {
        return {Mm(x + offset_.X), Mm(y + offset_.Y)};
    }
    /// From its pixels.
    [[nodiscard]] QPointF At(const PlanPoint& pixel) const {
        return At(kit_.Plan.Scale.Mm(pixel.X), kit_.Plan.Scale.Mm(pixel.Y));
    }
    [[nodiscard]] int SymbolOf(int paint) const;
    /// As dark as the painter wants what usually is that gray.
    [[nodiscard]] QColor Ink(int usual) const;

    void DrawOutlines(const PlanRect& part);
    void DrawSymbols(const PlanRect& ownPart, const PlanRect& shownPart);

  private:
    void DrawLeader(const PlanLabel& label, double aspect);

    QPainter& painter_;
    const KitPages& kit_;
    PlanPoint offset_;
};

}  // namespace vendrel
