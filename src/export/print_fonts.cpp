#include "export/print_fonts.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QPainterPath>
#include <algorithm>
#include <cctype>
#include <cmath>

#include "support/error.h"
#include "support/list.h"

namespace vendrel {
namespace {

constexpr const char* kSymbolFamily = "Liberation Mono";
constexpr int kMeasureSize = 1000;
constexpr double kBroadest = 0.66;  // width of a symbol for its height
constexpr double kBarGap = 0.07;    // under a small letter, in ems
constexpr double kBarThickness = 0.06;

char CharacterOf(int symbol) {
    return At(kSymbolCharacters, symbol - 1);
}

QString TextOf(int symbol) {
    return QString(QLatin1Char(CharacterOf(symbol)));
}

QFont SymbolFont(int size) {
    QFont font(kSymbolFamily);
    font.setPixelSize(size);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QRectF Scaled(const QRectF& rect, double by) {
    return {rect.left() * by, rect.top() * by, rect.width() * by, rect.height() * by};
}

QRectF InkOf(const QString& text, const QFont& font) {
    QPainterPath path;
    path.addText(0, 0, font, text);
    return Scaled(path.boundingRect(), 1.0 / kMeasureSize);
}

}  // namespace

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

PrintSymbols::PrintSymbols() {
    if (!QFontDatabase::hasFamily(kSymbolFamily)) {
        throw Error("The font " + std::string(kSymbolFamily) +
                    " is not installed. Install the package fonts-liberation.");
    }
    const QFont font = SymbolFont(kMeasureSize);
    capital_ = InkOf(QStringLiteral("X"), font).height();
    for (int symbol = 1; symbol <= kSymbolCount; ++symbol) {
        At(shapes_, symbol) = Measure(symbol, font);
    }
}

PrintSymbols::Shape PrintSymbols::Measure(int symbol, const QFont& font) {
    Shape shape;
    shape.Ink = InkOf(TextOf(symbol), font);
    if (std::islower(static_cast<unsigned char>(CharacterOf(symbol))) != 0) {
        shape.Bar = {shape.Ink.left(), shape.Ink.bottom() + kBarGap, shape.Ink.width(),
                     kBarThickness};
        shape.Ink |= shape.Bar;
    }
    shape.Box = std::max(shape.Ink.height(), InkOf(QStringLiteral("X"), font).height());
    shape.Squeeze = std::min(1.0, kBroadest * shape.Box / shape.Ink.width());
    return shape;
}

SymbolAspects PrintSymbols::Aspects() const {
    SymbolAspects aspects{};
    for (std::size_t i = 1; i < shapes_.size(); ++i) {
        aspects[i] = shapes_[i].Ink.width() * shapes_[i].Squeeze / shapes_[i].Box;
    }
    return aspects;
}

void PrintSymbols::Draw(QPainter& painter, int symbol, QPointF centre, double height) const {
    const Shape& shape = shapes_.at(static_cast<std::size_t>(symbol));
    // Whole font sizes are enough: the painter's unit is far smaller than a symbol.
    const double em = std::max(1.0, std::floor(height / shape.Box));
    painter.save();
    painter.translate(centre);
    painter.scale(shape.Squeeze, 1);
    painter.translate(-shape.Ink.center() * em);
    DrawShape(painter, symbol, shape, em);
    painter.restore();
}

void PrintSymbols::DrawInLine(QPainter& painter, int symbol, QPointF centre,
                              double capitals) const {
    const Shape& shape = shapes_.at(static_cast<std::size_t>(symbol));
    const double em = std::max(1.0, std::floor(capitals / capital_));
    painter.save();
    painter.translate(centre.x() - shape.Ink.center().x() * em, centre.y() + capitals / 2);
    DrawShape(painter, symbol, shape, em);
    painter.restore();
}

// With the pen at the painter's zero.
void PrintSymbols::DrawShape(QPainter& painter, int symbol, const Shape& shape, double em) {
    painter.setFont(SymbolFont(static_cast<int>(em)));
    painter.drawText(QPointF(0, 0), TextOf(symbol));
    if (!shape.Bar.isEmpty()) {
        painter.fillRect(Scaled(shape.Bar, em), painter.pen().color());
    }
}

}  // namespace vendrel
