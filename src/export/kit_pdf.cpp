#include "export/kit_pdf.h"

#include <QtCore/QBuffer>
#include <QtCore/QHashFunctions>
#include <QtCore/QMarginsF>
#include <QtGui/QImageReader>
#include <QtGui/QPageLayout>
#include <QtGui/QPdfWriter>

#include "export/pdf_pages.h"
#include "export/pdf_units.h"
#include "support/error.h"
#include "support/whole_file.h"

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

void DrawPages(QPdfWriter& writer, const KitPages& kit) {
    writer.setPageLayout(LayoutOf(kit.FrontPaper));
    QPainter painter;
    if (!painter.begin(&writer)) {
        throw Error("The pages cannot be drawn. Is there enough memory?");
    }
    DrawCoverPage(painter, kit);
    writer.newPage();
    for (int page = 0; page < CountChartPages(kit); ++page) {
        DrawChartPage(painter, kit, page);
        writer.newPage();
    }
    DrawMapPage(painter, kit);
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

std::vector<PlanRect> BoxesOf(const PrintPlan& plan) {
    std::vector<PlanRect> boxes;
    for (const PlanLabel& label : plan.Labels) {
        const PrintScale scale = plan.Scale;
        const PlanRect box = BoxOf(label, plan.Aspects[plan.Regions[label.Region].Value]);
        boxes.push_back(
            {scale.Mm(box.Left), scale.Mm(box.Top), scale.Mm(box.Right), scale.Mm(box.Bottom)});
    }
    return boxes;
}

Surface PaintingOf(const PaintedRegions& regions, const WorkState& state) {
    Surface painting(regions.Ids.Across() + 1, regions.Ids.Down() + 1);
    for (int y = 0; y < painting.Height(); ++y) {
        for (int x = 0; x < painting.Width(); ++x) {
            const Region& region = regions[regions.Ids(x, y)];
            painting.Set(x, y, ColorOf(state.PaintColors[region.Value]));
        }
    }
    return painting;
}

QImage LogoOf(const PlanSettings& settings) {
    if (settings.Logo.empty()) {
        return {};
    }
    QImageReader reader(QString::fromStdString(settings.Logo.string()));
    reader.setAutoTransform(true);
    QImage logo = reader.read();
    if (logo.isNull()) {
        throw FileError(settings.Logo,
                        "cannot be read as a logo. Choose a PNG or JPEG picture for it.");
    }
    return logo;
}

// Fonts and pictures are written in the order of hash tables, which the toolkit seeds by chance.
class SteadyHashes {
  public:
    SteadyHashes() { QHashSeed::setDeterministicGlobalSeed(); }
    ~SteadyHashes() { QHashSeed::resetRandomGlobalSeed(); }
    SteadyHashes(const SteadyHashes&) = delete;
    SteadyHashes& operator=(const SteadyHashes&) = delete;
};

// The hour of printing says nothing about a kit, and with it no two files would be alike. Takes
// the same room, for the file is full of byte positions.
void FixDate(QByteArray& pdf) {
    constexpr QByteArrayView kKey = "/CreationDate (D:";
    constexpr QByteArrayView kFixed = "20000101000000";
    const qsizetype at = pdf.lastIndexOf(kKey);
    const qsizetype end = at < 0 ? -1 : pdf.indexOf(')', at);
    if (end < at + kKey.size() + kFixed.size()) {
        return;
    }
    pdf.replace(at + kKey.size(), kFixed.size(), kFixed.data(), kFixed.size());
    // What follows is the zone: "+01'00'", "-01'00'" or "Z".
    for (qsizetype i = at + kKey.size() + kFixed.size(); i < end; ++i) {
        char& c = pdf.data()[i];
        c = c == '-' ? '+' : c >= '0' && c <= '9' ? '0' : c;
    }
}

}  // namespace

void WriteKitPdf(const Workplace& place, const PlanSettings& settings, const Target& target) {
    place.Screen.SetCaption("Drawing the Plan");
    const PrintSymbols symbols(settings.Symbols, place.State->PaintCount);
    const PrintPlan plan =
        MakePrintPlan(place.State, place.Frames->WorkFrame.Picture, settings, symbols.Aspects());
    const KitPages kit{
        place,
        plan,
        symbols,
        SizeOf(settings.Sheet),
        BoxesOf(plan),
        PaintingOf(plan.Regions, place.State),
        settings,
        PaintNeeds(plan.Regions, plan.Pages, plan.Scale, place.State->PaintCount, settings.Use),
        LogoOf(settings)};
    const SteadyHashes steady;
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(kPdfResolution);
        writer.setTitle(ToQt(kit.Title()));
        writer.setCreator("Vendrel");
        DrawPages(writer, kit);
    }
    FixDate(pdf);
    place.Screen.SetCaption("Saving File, Please Wait....");
    WriteWholeFile(target, {pdf.constData(), static_cast<std::size_t>(pdf.size())});
}

}  // namespace vendrel
