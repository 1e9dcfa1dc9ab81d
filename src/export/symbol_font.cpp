#include "export/symbol_font.h"

#include <QtCore/QDirIterator>
#include <QtCore/QStandardPaths>
#include <QtGui/QFont>
#include <QtGui/QFontDatabase>
#include <QtGui/QRawFont>

namespace vendrel {
namespace {

constexpr double kAnySize = 16;

// Names in a font are of two bytes a letter.
bool IsVersion(const QRawFont& font, const char* version) {
    QByteArray wide;
    for (const char letter : QByteArray(version)) {
        wide.append('\0').append(letter);
    }
    return font.fontTable("name").contains(wide);
}

bool IsInForce(const FontVersion& wanted) {
    return IsVersion(QRawFont::fromFont(QFont(wanted.Family)), wanted.Version);
}

QString FileOf(const FontVersion& wanted) {
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::FontsLocation)) {
        QDirIterator files(folder, {wanted.File}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            if (IsVersion(QRawFont(file, kAnySize), wanted.Version)) {
                return file;
            }
        }
    }
    return {};
}

}  // namespace

std::string UseVersion(const FontVersion& wanted) {
    // Asked first in any case: a font added later takes the place of the one in force.
    if (IsInForce(wanted)) {
        return {};
    }
    const QString file = FileOf(wanted);
    if (!file.isEmpty() && QFontDatabase::addApplicationFont(file) >= 0 && IsInForce(wanted)) {
        return {};
    }
    return std::string(wanted.Family) + " " + wanted.Version +
           " is not installed: these symbols are drawn with another version and will differ from "
           "the shipped ones. Install the package fonts-liberation to get the same.";
}

}  // namespace vendrel
