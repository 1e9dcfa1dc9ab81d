#include "export/print_symbols.h"

#include <QtGui/QFontDatabase>
#include <QtGui/QRawFont>
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
constexpr int kDrawnSize = 250;  // of letters before they are scaled: about as they come out
constexpr double kBroadestLetter = 0.66;  // width of a symbol for its height
constexpr double kBroadestNumber = 1.2;
constexpr double kBroadestLabel = 1.6;
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

// Laid out once: shaping a letter takes longer than drawing it.
QGlyphRun GlyphsOf(const QString& text, const QFont& font) {
    const QRawFont raw = QRawFont::fromFont(font);
    QGlyphRun run;
    run.setRawFont(raw);
    run.setGlyphIndexes(raw.glyphIndexesForString(text));
    QList<QPointF> positions;
    QPointF at(0, 0);
    for (const QPointF& advance : raw.advancesForGlyphIndexes(run.glyphIndexes())) {
        positions.append(at);
        at += advance;
    }
    run.setPositions(positions);
    return run;
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

PrintSymbols::PrintSymbols(const PaintMarks& marks) {
    const int most = std::clamp(marks.Paints, 0, kSymbolCount);
    switch (marks.Style) {
        case SymbolStyle::Numbers:
            AddNumbers(most);
            break;
        case SymbolStyle::Signs:
            AddSigns(most);
            break;
        case SymbolStyle::Mine:
            AddLabels(marks.Labels);
            break;
        default:
            AddLetters(LettersFor(marks.Style, most));
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

void PrintSymbols::AddLabels(const std::vector<OwnLabel>& labels) {
    font_ = TextFont(1);
    capital_ = InkOf(QStringLiteral("X"), font_).height();
    for (const OwnLabel& label : labels) {
        if (shapes_.size() < static_cast<std::size_t>(kSymbolCount)) {
            AddText(QString::fromStdString(label.Text), kBroadestLabel);
        }
    }
}

void PrintSymbols::AddText(const QString& text, double broadest) {
    Shape shape;
    shape.Text = text;
    shape.Glyphs = GlyphsOf(text, Sized(font_, kDrawnSize));
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
    const double em = height / shape.Box;
    QTransform place = QTransform::fromTranslate(centre.x(), centre.y());
    place.scale(em * shape.Squeeze, em);
    place.translate(-shape.Ink.center().x(), -shape.Ink.center().y());
    DrawShape(painter, shape, place);
}

void PrintSymbols::DrawInLine(QPainter& painter, int symbol, QPointF centre,
                              double capitals) const {
    const Shape& shape = shapes_.at(static_cast<std::size_t>(symbol - 1));
    const bool isSign = shape.Text.isEmpty();
    const double em = isSign ? capitals * kSignInLine : capitals / capital_;
    QTransform place = QTransform::fromTranslate(centre.x() - shape.Ink.center().x() * em,
                                                 centre.y() + (isSign ? 0 : capitals / 2));
    place.scale(em, em);
    DrawShape(painter, shape, place);
}

// All letters in one size of their font, scaled: every size would be a font of its own.
void PrintSymbols::DrawShape(QPainter& painter, const Shape& shape, const QTransform& place) {
    if (shape.Text.isEmpty()) {
        painter.fillPath(place.map(shape.Path), painter.pen().color());
        return;
    }
    const QTransform before = painter.worldTransform();
    painter.setWorldTransform(QTransform::fromScale(1.0 / kDrawnSize, 1.0 / kDrawnSize) * place *
                              before);
    painter.drawGlyphRun(QPointF(0, 0), shape.Glyphs);
    if (!shape.Bar.isEmpty()) {
        painter.fillRect(Scaled(shape.Bar, kDrawnSize), painter.pen().color());
    }
    painter.setWorldTransform(before);
}

}  // namespace vendrel
