#include "export/text_canvas.h"

#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QFontDatabase>
#include <QtGui/QFontMetrics>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include "export/print_fonts.h"
#include "support/error.h"

namespace vendrel {
namespace {

constexpr const char* kFamily = "Liberation Mono";

// A symbol takes as many pixels whatever the screen: 96 dots to the inch.
int PixelsOf(int points) {
    return points * 96 / 72;
}

}  // namespace

struct TextCanvas::Raster {
    QImage Image;
    QFont Font;
};

TextCanvas::TextCanvas(int width, int height)
    : raster_(std::make_unique<Raster>(
          Raster{QImage(width, height, QImage::Format_RGB32), QFont(kFamily)})) {}

TextCanvas::~TextCanvas() = default;

int TextCanvas::Width() const {
    return raster_->Image.width();
}

int TextCanvas::Height() const {
    return raster_->Image.height();
}

void TextCanvas::Clear(Color background) {
    raster_->Image.fill(ToQt(background));
}

void TextCanvas::SetFont(std::string_view name, int points) {
    if (!QFontDatabase::hasFamily(kFamily)) {
        throw Error("The font " + std::string(kFamily) + ", used for " + std::string(name) +
                    ", is not installed. Install the package fonts-liberation.");
    }
    QFont font(kFamily);
    font.setPixelSize(PixelsOf(points));
    font.setHintingPreference(QFont::PreferFullHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::NoAntialias | QFont::NoSubpixelAntialias));
    raster_->Font = font;
}

void TextCanvas::Print(char character, Color ink) {
    QPainter painter(&raster_->Image);
    painter.setRenderHint(QPainter::TextAntialiasing, false);
    painter.setFont(raster_->Font);
    painter.setPen(ToQt(ink));
    painter.drawText(0, painter.fontMetrics().ascent(), QString(QLatin1Char(character)));
}

Color TextCanvas::Get(int x, int y) const {
    if (!raster_->Image.valid(x, y)) {
        return kNoColor;
    }
    const QRgb pixel = raster_->Image.pixel(x, y);
    return Rgb(qRed(pixel), qGreen(pixel), qBlue(pixel));
}

}  // namespace vendrel
