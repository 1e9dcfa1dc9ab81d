#include "export/pdf_file.h"

#include <QtCore/QBuffer>
#include <QtCore/QCryptographicHash>
#include <QtCore/QMarginsF>
#include <algorithm>

#include "export/pdf_units.h"
#include "export/print_fonts.h"
#include "support/error.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

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

QPageLayout PdfLayoutOf(const SizeMm& sheet) {
    const QPageSize upright(
        QSizeF(std::min(sheet.Width, sheet.Height), std::max(sheet.Width, sheet.Height)),
        QPageSize::Millimeter, {}, QPageSize::ExactMatch);
    QPageLayout layout(upright,
                       sheet.Width > sheet.Height ? QPageLayout::Landscape : QPageLayout::Portrait,
                       QMarginsF(), QPageLayout::Millimeter);
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

void PreparePdf(QPdfWriter& writer, const std::string& title) {
    // It names sRGB as the colors' meaning, and takes its fonts with it.
    writer.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b);
    writer.setResolution(kPdfResolution);
    writer.setTitle(ToQt(title));
    writer.setCreator("Vendrel");
}

void SettlePdf(QByteArray& pdf) {
    FixDates(pdf);
    FixId(pdf);
}

void WritePdf(const std::string& title, const SizeMm& sheet, const Target& target,
              const std::function<void(QPdfWriter&, QPainter&)>& draw) {
    const SteadyHashes steady;
    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        PreparePdf(writer, title);
        writer.setPageLayout(PdfLayoutOf(sheet));
        QPainter painter;
        if (!painter.begin(&writer)) {
            throw Error("The pages cannot be drawn. Is there enough memory?");
        }
        draw(writer, painter);
    }
    SettlePdf(pdf);
    WriteWholeFile(target, {pdf.constData(), static_cast<std::size_t>(pdf.size())});
}

}  // namespace vendrel
