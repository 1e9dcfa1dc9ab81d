#include "export/print_fonts.h"

#include <QtGui/QFontDatabase>

#include "support/error.h"

namespace vendrel {

QFont TextFont(int size, Weight weight) {
    for (const char* family : {"Liberation Sans", "DejaVu Sans"}) {
        if (QFontDatabase::hasFamily(family)) {
            QFont font(family);
            font.setPixelSize(size);
            font.setBold(weight == Weight::Bold);
            font.setHintingPreference(QFont::PreferNoHinting);
            return font;
        }
    }
    throw Error("There is no font to print with. Install the package fonts-liberation.");
}

QString ToQt(const std::string& text) {
    return QString::fromStdString(text);
}

QColor ToQt(Color color) {
    return {RedOf(color), GreenOf(color), BlueOf(color)};
}

}  // namespace vendrel
