#include "export/print_symbols.h"

#include <QtGui/QFontDatabase>
#include <algorithm>
#include <cctype>
#include <cmath>

#include "export/print_fonts.h"
#include "support/error.h"
#include "support/list.h"

namespace vendrel {
namespace {

constexpr const char* kLetterFamily = "Liberation Mono";
constexpr int kMeasureSize = 1000;
constexpr double kBroadestLetter = 0.66;  // width of a symbol for its height
constexpr double kBroadestNumber = 1.2;
constexpr double kBarGap = 0.07;  // under a small letter, in ems
constexpr double kBarThickness = 0.06;
constexpr double kSignInLine = 1.15;  // for a capital: shapes look smaller than letters

QFont LetterFont() {
    if (!QFontDatabase::hasFamily(kLetterFamily)) {
        throw Error("The font " + std::string(kLetterFamily) +
                    " is not installed. Install the package fonts-liberation.");
    }
    QFont font(kLetterFamily);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QFont Sized(QFont font, int size) {
    font.setPixelSize(size);
    return font;
}

QRectF Scaled(const QRectF& rect, double by) {
    return {rect.left() * by, rect.top() * by, rect.width() * by, rect.height() * by};
}

QRectF InkOf(const QString& text, const QFont& font) {
    QPainterPath path;
    path.addText(0, 0, Sized(font, kMeasureSize), text);
    return Scaled(path.boundingRect(), 1.0 / kMeasureSize);
}

QPainterPath PathOf(const Sign& sign) {
    QPainterPath path;
    for (const PlanLine& ring : sign.Rings) {
        QPolygonF polygon;
        for (const PlanPoint& point : ring) {
            polygon.append(QPointF(point.X, point.Y));
        }
        path.addPolygon(polygon);
        path.closeSubpath();
    }
    return path;
}

}  // namespace

void DrawSign(QPainter& painter, const Sign& sign, QPointF centre, double height) {
    const QTransform place = QTransform::fromTranslate(centre.x(), centre.y());
    painter.fillPath((QTransform::fromScale(height, height) * place).map(PathOf(sign)),
                     painter.pen().color());
}

PrintSymbols::PrintSymbols(SymbolStyle style, int paints) {
    const int most = std::clamp(paints, 0, kSymbolCount);
    switch (style) {
        case SymbolStyle::Numbers:
            AddNumbers(most);
            break;
        case SymbolStyle::Signs:
            AddSigns(most);
            break;
        default:
            AddLetters(LettersFor(style, most));
    }
}

void PrintSymbols::AddLetters(const std::string& letters) {
    font_ = LetterFont();
    capital_ = InkOf(QStringLiteral("X"), font_).height();
    for (const char letter : letters) {
        AddText(QString(QLatin1Char(letter)), kBroadestLetter);
        if (std::islower(static_cast<unsigned char>(letter)) != 0) {
            Shape& shape = shapes_.back();
            shape.Bar = {shape.Ink.left(), shape.Ink.bottom() + kBarGap, shape.Ink.width(),
                         kBarThickness};
            shape.Ink |= shape.Bar;
            shape.Box = std::max(shape.Ink.height(), capital_);
            shape.Squeeze = std::min(1.0, kBroadestLetter * shape.Box / shape.Ink.width());
        }
    }
}

void PrintSymbols::AddNumbers(int paints) {
    font_ = TextFont(1);
    capital_ = InkOf(QStringLiteral("8"), font_).height();
    for (int number = 1; number <= paints; ++number) {
        AddText(QString::number(number), kBroadestNumber);
    }
}

void PrintSymbols::AddText(const QString& text, double broadest) {
    Shape shape;
    shape.Text = text;
    shape.Name = text.toStdString();
    shape.Ink = InkOf(text, font_);
    shape.Box = std::max(shape.Ink.height(), capital_);
    shape.Squeeze = std::min(1.0, broadest * shape.Box / shape.Ink.width());
    shapes_.push_back(shape);
}

void PrintSymbols::AddSigns(int paints) {
    for (int i = 0; i < paints; ++i) {
        Shape shape;
        shape.Path = PathOf(At(Signs(), i));
        shape.Name = At(Signs(), i).Name;
        const double width = shape.Path.boundingRect().width();
        shape.Ink = {-width / 2, -0.5, width, 1};
        shapes_.push_back(shape);
    }
}

SymbolAspects PrintSymbols::Aspects() const {
    SymbolAspects aspects{};
    for (std::size_t i = 0; i < shapes_.size(); ++i) {
        const Shape& shape = shapes_[i];
        aspects.at(i + 1) = shape.Ink.width() * shape.Squeeze / shape.Box;
    }
    return aspects;
}

QPainterPath PrintSymbols::Outline(int symbol) const {
    const Shape& shape = shapes_.at(static_cast<std::size_t>(symbol - 1));
    if (shape.Text.isEmpty()) {
        return shape.Path;
    }
    QPainterPath path;
    path.addText(0, 0, Sized(font_, kMeasureSize), shape.Text);
    path.addRect(Scaled(shape.Bar, kMeasureSize));
    const double toBox = 1 / shape.Box;
    const QPointF middle = shape.Ink.center();
    return QTransform::fromScale(shape.Squeeze * toBox / kMeasureSize, toBox / kMeasureSize)
        .map(path)
        .translated(-middle.x() * shape.Squeeze * toBox, -middle.y() * toBox);
}

std::string PrintSymbols::NameOf(int symbol) const {
    return Holds(shapes_, symbol - 1) ? At(shapes_, symbol - 1).Name : std::string();
}

void PrintSymbols::Draw(QPainter& painter, int symbol, QPointF centre, double height) const {
    const Shape& shape = shapes_.at(static_cast<std::size_t>(symbol - 1));
    // Whole font sizes are enough: the painter's unit is far smaller than a symbol.
    const double em = std::max(1.0, std::floor(height / shape.Box));
    painter.save();
    painter.translate(centre);
    painter.scale(shape.Squeeze, 1);
    painter.translate(-shape.Ink.center() * em);
    DrawShape(painter, shape, em);
    painter.restore();
}

void PrintSymbols::DrawInLine(QPainter& painter, int symbol, QPointF centre,
                              double capitals) const {
    const Shape& shape = shapes_.at(static_cast<std::size_t>(symbol - 1));
    painter.save();
    if (shape.Text.isEmpty()) {
        painter.translate(centre);
        DrawShape(painter, shape, capitals * kSignInLine);
    } else {
        const double em = std::max(1.0, std::floor(capitals / capital_));
        painter.translate(centre.x() - shape.Ink.center().x() * em, centre.y() + capitals / 2);
        DrawShape(painter, shape, em);
    }
    painter.restore();
}

// With the pen at the painter's zero.
void PrintSymbols::DrawShape(QPainter& painter, const Shape& shape, double em) const {
    if (shape.Text.isEmpty()) {
        painter.fillPath(QTransform::fromScale(em, em).map(shape.Path), painter.pen().color());
        return;
    }
    painter.setFont(Sized(font_, static_cast<int>(em)));
    painter.drawText(QPointF(0, 0), shape.Text);
    if (!shape.Bar.isEmpty()) {
        painter.fillRect(Scaled(shape.Bar, em), painter.pen().color());
    }
}

}  // namespace vendrel
