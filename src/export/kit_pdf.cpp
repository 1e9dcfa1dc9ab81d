#include "export/kit_pdf.h"

#include <QtCore/QBuffer>
#include <QtCore/QCryptographicHash>
#include <QtCore/QHashFunctions>
#include <QtCore/QMarginsF>
#include <QtGui/QPageLayout>
#include <QtGui/QPdfWriter>
#include <algorithm>

#include "export/drawn_kit.h"
#include "export/pdf_boxes.h"
#include "export/pdf_leaflet_pages.h"
#include "export/pdf_units.h"
#include "export/save_drawn.h"
#include "support/error.h"

namespace vendrel {
namespace {

QPageLayout LayoutOf(const SizeMm& sheet) {
    const QPageSize upright(
        QSizeF(std::min(sheet.Width, sheet.Height), std::max(sheet.Width, sheet.Height)),
        QPageSize::Millimeter, {}, QPageSize::ExactMatch);
    QPageLayout layout(upright,
                       sheet.Width > sheet.Height ? QPageLayout::Landscape : QPageLayout::Portrait,
                       QMarginsF(), QPageLayout::Millimeter);
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

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
    writer.setPageLayout(LayoutOf({kit.FrontPaper.Width * scale, kit.FrontPaper.Height * scale}));
    QPainter painter;
    if (!painter.begin(&writer)) {
        throw Error("The pages cannot be drawn. Is there enough memory?");
    }
    DrawFrontPages(writer, painter, kit);
    writer.setPageLayout(LayoutOf(kit.Plan.Pages.Paper.Sheet));
    for (const PageTile& tile : kit.Plan.Pages.Tiles) {
        writer.newPage();
        DrawPlanPage(painter, kit, tile);
        kit.Place.Screen.ReportProgress(tile.Row * kit.Plan.Pages.Across + tile.Column + 1,
                                        static_cast<int>(kit.Plan.Pages.Tiles.size()));
        kit.Place.Screen.Yield();
    }
    kit.Place.Screen.ReportProgress(0, 0);
}

// Fonts and pictures are written in the order of hash tables, which the toolkit seeds by chance.
class SteadyHashes {
  public:
    SteadyHashes() { QHashSeed::setDeterministicGlobalSeed(); }
    ~SteadyHashes() { QHashSeed::resetRandomGlobalSeed(); }
    SteadyHashes(const SteadyHashes&) = delete;
    SteadyHashes& operator=(const SteadyHashes&) = delete;
};

// Takes the same room, for the file is full of byte positions. What follows is the zone: "+01'00'",
// "+01:00" or "Z".
void FixDate(QByteArray& pdf, QByteArrayView key, QByteArrayView fixed, char closing) {
    const qsizetype at = pdf.lastIndexOf(key);
    const qsizetype end = at < 0 ? -1 : pdf.indexOf(closing, at + key.size());
    if (end < at + key.size() + fixed.size()) {
        return;
    }
    pdf.replace(at + key.size(), fixed.size(), fixed.data(), fixed.size());
    for (qsizetype i = at + key.size() + fixed.size(); i < end; ++i) {
        char& c = pdf.data()[i];
        c = c == '-' ? '+' : c >= '0' && c <= '9' ? '0' : c;
    }
}

// The hour of printing says nothing about a kit, and with it no two files would be alike.
void FixDates(QByteArray& pdf) {
    FixDate(pdf, "/CreationDate (D:", "20000101000000", ')');
    FixDate(pdf, "xmp:CreateDate=\"", "2000-01-01T00:00:00", '"');
    FixDate(pdf, "xmp:ModifyDate=\"", "2000-01-01T00:00:00", '"');
}

// The toolkit tells files apart by chance, this one by what they hold.
void FixId(QByteArray& pdf) {
    constexpr qsizetype kDigits = 32;
    constexpr QByteArrayView kBetween = "> <";
    const qsizetype key = pdf.lastIndexOf("/ID [ <");
    const qsizetype first = key + 7;
    const qsizetype second = first + kDigits + kBetween.size();
    if (key < 0 || second + kDigits > pdf.size()) {
        return;
    }
    const QByteArray none(kDigits, '0');
    pdf.replace(first, kDigits, none).replace(second, kDigits, none);
    const QByteArray sum = QCryptographicHash::hash(pdf, QCryptographicHash::Md5).toHex();
    pdf.replace(first, kDigits, sum).replace(second, kDigits, sum);
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
        // It names sRGB as the colors' meaning, and takes its fonts with it.
        writer.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b);
        writer.setResolution(kPdfResolution);
        writer.setTitle(ToQt(kit.Title()));
        writer.setCreator("Vendrel");
        DrawPages(writer, kit);
    }
    if (kit.Settings.Sheet.IsCanvas()) {
        const double bleed = kit.Settings.BleedMm;
        AddPageBoxes(pdf, PlanPageDesign::kWholeCanvasEdge + bleed, bleed);
    }
    FixDates(pdf);
    FixId(pdf);
    SaveDrawn(screen, pdf, target);
}

}  // namespace vendrel
