#include "export/pdf_boxes.h"

#include <QtCore/QList>
#include <algorithm>

namespace vendrel {
namespace {

constexpr double kPointsPerMm = 72 / 25.4;
constexpr qsizetype kOffsetDigits = 10;
constexpr qsizetype kEntryBytes = 20;  // of the table: "0000000016 00000 n \n"

// What stands in the brackets behind a key, split at its spaces.
QList<QByteArray> InBrackets(const QByteArray& pdf, qsizetype at) {
    const qsizetype from = pdf.indexOf('[', at) + 1;
    return pdf.sliced(from, pdf.indexOf(']', from) - from).simplified().split(' ');
}

QByteArray Box(const char* name, double inset, double width, double height) {
    QByteArray box = QByteArray("/") + name + " [";
    for (const double at : {inset, inset, width - inset, height - inset}) {
        box += QByteArray::number(at, 'f', 3) + ' ';
    }
    box.chop(1);
    return box + "]\n";
}

// Bytes were put in: the table behind them moves on, and so do the objects in between.
void MoveOn(QByteArray& pdf, qsizetype from, qsizetype by) {
    constexpr QByteArrayView kStart = "startxref\n";
    const qsizetype start = pdf.lastIndexOf(kStart) + kStart.size();
    const qsizetype end = pdf.indexOf('\n', start);
    const qsizetype table = pdf.sliced(start, end - start).toLongLong() + by;
    pdf.replace(start, end - start, QByteArray::number(table));
    // "xref", then the first object's number and how many there are.
    const qsizetype count = pdf.indexOf('\n', table) + 1;
    const qsizetype entries = pdf.indexOf('\n', count) + 1;
    const qsizetype objects = pdf.sliced(count, entries - count).trimmed().split(' ').at(1).toInt();
    for (qsizetype i = 1; i < objects; ++i) {
        const qsizetype at = entries + i * kEntryBytes;
        const qsizetype offset = pdf.sliced(at, kOffsetDigits).toLongLong();
        if (offset > from) {
            pdf.replace(at, kOffsetDigits,
                        QByteArray::number(offset + by).rightJustified(kOffsetDigits, '0'));
        }
    }
}

}  // namespace

void AddPageBoxes(QByteArray& pdf, double trim, double bleed) {
    const qsizetype page = pdf.lastIndexOf("/Type /Page\n");
    const qsizetype media = page < 0 ? -1 : pdf.indexOf("/MediaBox [", page);
    if (media < 0 || !pdf.contains("startxref\n")) {
        return;
    }
    const QList<QByteArray> sides = InBrackets(pdf, media);
    const double width = sides.value(2).toDouble();
    const double height = sides.value(3).toDouble();
    const QByteArray boxes = Box("BleedBox", (trim - bleed) * kPointsPerMm, width, height) +
                             Box("TrimBox", trim * kPointsPerMm, width, height);
    pdf.insert(media, boxes);
    MoveOn(pdf, media, boxes.size());
}

}  // namespace vendrel
