#include "export/kit_pdf.h"

#include <QtCore/QBuffer>
#include <QtGui/QPdfWriter>

#include "export/drawn_kit.h"
#include "export/pdf_boxes.h"
#include "export/pdf_file.h"
#include "export/pdf_leaflet_pages.h"
#include "export/pdf_units.h"
#include "export/save_drawn.h"
#include "support/error.h"

namespace vendrel {
namespace {

void DrawFrontPages(QPdfWriter& writer, QPainter& painter, const KitPages& kit) {
    painter.scale(kit.FrontScale, kit.FrontScale);
    DrawCoverPage(painter, kit);
    writer.newPage();
    if (!kit.Leaflet.empty()) {
        const LeafletPages leaflet(kit, writer);
        for (int page = 0; page < leaflet.Count(); ++page) {
            leaflet.Draw(painter, page);
            writer.newPage();
        }
    }
    for (int page = 0; page < CountChartPages(kit); ++page) {
        DrawChartPage(painter, kit, page);
        writer.newPage();
    }
    DrawMapPage(painter, kit);
    painter.resetTransform();
}

void DrawPages(QPdfWriter& writer, const KitPages& kit) {
    const double scale = kit.FrontScale;
    writer.setPageLayout(
        PdfLayoutOf({kit.FrontPaper.Width * scale, kit.FrontPaper.Height * scale}));
    QPainter painter;
    if (!painter.begin(&writer)) {
        throw Error("The pages cannot be drawn. Is there enough memory?");
    }
    DrawFrontPages(writer, painter, kit);
    writer.setPageLayout(PdfLayoutOf(kit.Plan.Pages.Paper.Sheet));
    for (const PageTile& tile : kit.Plan.Pages.Tiles) {
        writer.newPage();
        DrawPlanPage(painter, kit, tile);
        kit.Place.Screen.ReportProgress(tile.Row * kit.Plan.Pages.Across + tile.Column + 1,
                                        static_cast<int>(kit.Plan.Pages.Tiles.size()));
        kit.Place.Screen.Yield();
    }
    kit.Place.Screen.ReportProgress(0, 0);
}

}  // namespace

void WriteKitPdf(PlannedKit& planned, const Target& target) {
    Ui& screen = planned.Place().Screen;
    screen.SetCaption("Drawing the Plan");
    const DrawnKit drawn(planned);
    const KitPages& kit = drawn.Pages();
    const SteadyHashes steady;
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        PreparePdf(writer, kit.Title());
        DrawPages(writer, kit);
    }
    if (kit.Settings.Sheet.IsCanvas()) {
        const double bleed = kit.Settings.BleedMm;
        AddPageBoxes(pdf, PlanPageDesign::kWholeCanvasEdge + bleed, bleed);
    }
    SettlePdf(pdf);
    SaveDrawn(screen, pdf, target);
}

}  // namespace vendrel
