#pragma once

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <string>
#include <vector>

#include "export/order_code.h"
#include "export/print_fonts.h"
#include "export/print_symbols.h"
#include "plan/leaflet.h"
#include "plan/plan_layout.h"
#include "shell/workplace.h"

namespace vendrel {

inline constexpr double kOrderCornerMm = 17;
/// Around what stands on a front page, in millimeters.
inline constexpr double kFrontMargin = 15;
/// Of what is read second.
inline constexpr QColor kFaintInk{90, 90, 90};

/// Everything the pages are drawn from.
struct KitPages {
    const Workplace& Place;
    const PrintPlan& Plan;
    const PrintSymbols& Symbols;
    const PaintMarks& Marks;            // that they draw
    SizeMm FrontPaper;                  // of cover, chart and page map, upright, as they are laid
    double FrontScale;                  // out, and how much smaller they are printed
    std::vector<PlanRect> SymbolBoxes;  // of all labels, in millimetres of the canvas
    Surface Painting;                   // as the plan cuts it, no pixel bare
    const PlanSettings& Settings;
    std::vector<PaintNeed> Needs;  // by paint
    QImage Logo;                   // null: none
    std::string SmallestSymbol;    // in millimetres, of each area's largest
    OrderCode Code;                // of the order's number; none without one
    std::vector<LeafletPart> Leaflet;

    [[nodiscard]] std::string Title() const;  // photo and difficulty
    /// What a painter must know who has the sheet too: a line of its own; empty for letters.
    [[nodiscard]] QString StyleNote() const;
    /// What the order's number takes of a front page's heading, in millimeters.
    [[nodiscard]] double OrderCorner() const { return Code.IsNone() ? 0 : kOrderCornerMm; }
    /// "Order 1042"; empty without a number.
    [[nodiscard]] QString OrderLine() const;
    /// Of headings: the shop's color, or black.
    [[nodiscard]] QColor Ink() const;
    /// A thick line in the shop's color; none where it has chosen none.
    void DrawRule(QPainter& painter, double left, double top, double width) const;
};

/// The painting, the photo and what the kit consists of.
void DrawCoverPage(QPainter& painter, const KitPages& kit);
[[nodiscard]] int CountChartPages(const KitPages& kit);
/// A front page's number and code, beside its heading.
void DrawOrderCorner(QPainter& painter, const KitPages& kit);
/// A page of the color chart, counted from 0: what to buy, with the symbols as the plan shows them.
void DrawChartPage(QPainter& painter, const KitPages& kit, int page);
/// How the pages of the plan lie, and how to put them together.
void DrawMapPage(QPainter& painter, const KitPages& kit);
/// One page of the plan, or all of it where the canvas is the paper.
void DrawPlanPage(QPainter& painter, const KitPages& kit, const PageTile& tile);
/// All of it with its bleed, where the canvas is the paper.
void DrawCanvasPage(QPainter& painter, const KitPages& kit);

}  // namespace vendrel
