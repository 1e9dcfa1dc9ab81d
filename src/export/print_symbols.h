#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QGlyphRun>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <string>
#include <vector>

#include "plan/paint_marks.h"
#include "plan/signs.h"
#include "plan/symbol_aspects.h"

namespace vendrel {

/// Draws a sign `height` units tall in the painter's pen's color.
void DrawSign(QPainter& painter, const Sign& sign, QPointF centre, double height);

/// The symbols as print shows them: at every size, so small letters are underlined, or a large
/// "c" could be taken for a small "C"; broad ones are narrowed to fit into narrow stipples.
class PrintSymbols {
  public:
    /// Those of so many paints. Needs a running QGuiApplication. Throws Error when their font is
    /// not installed.
    explicit PrintSymbols(const PaintMarks& marks);
    /// In a style without labels of the painter's own.
    PrintSymbols(SymbolStyle style, int paints) : PrintSymbols(PaintMarks{style, paints}) {}

    /// A symbol that is not there is as narrow as nothing.
    [[nodiscard]] SymbolAspects Aspects() const;
    /// A symbol's outlines, even-odd, in a box 1 unit tall with its middle at 0.
    [[nodiscard]] QPainterPath Outline(int symbol) const;
    /// A letter, a number, a label or the name of a sign; empty for a symbol that is not there.
    [[nodiscard]] std::string NameOf(int symbol) const;
    /// Draws a symbol with the painter's pen; its box is `height` units tall, capitals fill it.
    void Draw(QPainter& painter, int symbol, QPointF centre, double height) const;
    /// Draws a symbol as one of a list: all in one size, on one base line, capitals `capitals`
    /// units tall and centred.
    void DrawInLine(QPainter& painter, int symbol, QPointF centre, double capitals) const;

  private:
    // In a font of 1 unit, from the pen's position on the base line.
    struct Shape {
        QString Text;      // empty for a sign
        QGlyphRun Glyphs;  // the text's, in a font of kDrawnSize units
        std::string Name;
        QPainterPath Path;   // of a sign
        QRectF Ink;          // the underline included
        QRectF Bar;          // the underline; empty under capitals, digits and signs
        double Box = 1;      // height that the symbol is scaled by
        double Squeeze = 1;  // of its width
    };
    void AddLetters(const std::string& letters);
    void AddNumbers(int paints);
    void AddLabels(const std::vector<OwnLabel>& labels);
    void AddSigns(int paints);
    void AddText(const QString& text, double broadest);
    static void DrawShape(QPainter& painter, const Shape& shape, const QTransform& place);

    QFont font_;
    double capital_ = 1;         // height of one
    std::vector<Shape> shapes_;  // of symbol 1 and on
};

}  // namespace vendrel
