#include "export/plan_preview.h"

#include <algorithm>
#include <cmath>

#include "export/drawn_kit.h"
#include "export/pdf_units.h"
#include "export/qt_image.h"

namespace vendrel {

Surface PreviewPlan(PlannedKit& kit, int longest) {
    const DrawnKit drawn(kit);
    const PagePlan& pages = drawn.Pages().Plan.Pages;
    const SizeMm& sheet = pages.Paper.Sheet;
    const double perMm = longest / std::max(sheet.Width, sheet.Height);
    QImage page(static_cast<int>(std::lround(sheet.Width * perMm)),
                static_cast<int>(std::lround(sheet.Height * perMm)), QImage::Format_RGB32);
    page.fill(Qt::white);
    {
        QPainter painter(&page);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                               QPainter::SmoothPixmapTransform);
        painter.scale(perMm / kUnitsPerMm, perMm / kUnitsPerMm);
        DrawPlanPage(painter, drawn.Pages(), pages.Tiles.front());
    }
    return ToSurface(page);
}

}  // namespace vendrel
