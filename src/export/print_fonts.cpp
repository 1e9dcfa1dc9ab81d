#include "export/print_fonts.h"

#include <QtGui/QFontDatabase>

#include "support/error.h"

namespace vendrel {
namespace {

QString InstalledFamily() {
    for (const char* family : {"Liberation Sans", "DejaVu Sans"}) {
        if (QFontDatabase::hasFamily(family)) {
            return family;
        }
    }
    throw Error("There is no font to print with. Install the package fonts-liberation.");
}

}  // namespace

QFont TextFont(int size, Weight weight) {
    // Asked once: the answer takes longer than a line of text.
    static const QString kFamily = InstalledFamily();
    QFont font(kFamily);
    font.setPixelSize(size);
    font.setBold(weight == Weight::Bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QString ToQt(const std::string& text) {
    return QString::fromStdString(text);
}

QColor ToQt(Color color) {
    return {RedOf(color), GreenOf(color), BlueOf(color)};
}

}  // namespace vendrel
