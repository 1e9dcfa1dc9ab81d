#include "export/pdf_file.h"

#include <QtCore/QBuffer>
#include <QtCore/QCryptographicHash>
#include <QtCore/QMarginsF>
#include <algorithm>
#include <vector>

#include "export/pdf_units.h"
#include "export/print_fonts.h"
#include "support/error.h"
#include "support/whole_file.h"

namespace vendrel {
namespace {

// What was taken out of a file, by where it was.
struct Cut {
    qsizetype At = 0;
    qsizetype Bytes = 0;
};

Cut Replace(QByteArray& pdf, qsizetype from, qsizetype end, const QByteArray& by) {
    pdf.replace(from, end - from, by);
    return {from, end - from - by.size()};
}

// The hour and zone of printing say nothing about a kit, and with them no two files would be alike.
std::vector<Cut> FixDates(QByteArray& pdf) {
    const auto fix = [&pdf](QByteArrayView key, char closing, const char* date) -> Cut {
        const qsizetype at = pdf.indexOf(key);
        const qsizetype end = at < 0 ? -1 : pdf.indexOf(closing, at + key.size());
        return end < 0 ? Cut{} : Replace(pdf, at + key.size(), end, date);
    };
    // From the back, so that all places are those of the file as it was.
    std::vector<Cut> cuts = {fix("xmp:ModifyDate=\"", '"', "2000-01-01T00:00:00Z"),
                             fix("xmp:CreateDate=\"", '"', "2000-01-01T00:00:00Z")};
    constexpr QByteArrayView kLength = "/Subtype /XML\n/Length ";
    const qsizetype length = pdf.indexOf(kLength) + kLength.size();
    const qsizetype end = pdf.indexOf('\n', length);
    const qsizetype bytes = pdf.sliced(length, end - length).toLongLong();
    cuts.push_back(
        Replace(pdf, length, end, QByteArray::number(bytes - cuts[0].Bytes - cuts[1].Bytes)));
    cuts.push_back(fix("/CreationDate (D:", ')', "20000101000000Z"));
    return cuts;
}

// The table of where every object begins stands at the end, and where it begins behind it.
void MoveObjects(QByteArray& pdf, const std::vector<Cut>& cuts) {
    constexpr qsizetype kEntry = 20;  // "0000000117 00000 n \n"
    constexpr qsizetype kDigits = 10;
    const auto moved = [&cuts](qsizetype at) {
        qsizetype to = at;
        for (const Cut& cut : cuts) {
            to -= cut.At < at ? cut.Bytes : 0;
        }
        return to;
    };
    constexpr QByteArrayView kStart = "startxref\n";
    const qsizetype start = pdf.lastIndexOf(kStart) + kStart.size();
    const qsizetype end = pdf.indexOf(' ', start);
    const qsizetype table = moved(pdf.sliced(start, end - start).toLongLong());
    Replace(pdf, start, end, QByteArray::number(table));
    const qsizetype count = pdf.indexOf(' ', table) + 1;  // of "xref\n0 123\n"
    qsizetype entry = pdf.indexOf('\n', count) + 1;
    for (auto left = pdf.sliced(count, entry - count - 1).toLongLong(); left > 0; --left) {
        const qsizetype at = moved(pdf.sliced(entry, kDigits).toLongLong());
        pdf.replace(entry, kDigits, QByteArray::number(at).rightJustified(kDigits, '0'));
        entry += kEntry;
    }
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
    MoveObjects(pdf, FixDates(pdf));
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
