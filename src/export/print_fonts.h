#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QFont>
#include <QtGui/QPainter>
#include <array>

#include "output/symbol_set.h"
#include "plan/symbol_aspects.h"

namespace vendrel {

enum class Weight { Normal, Bold };

/// The font of headings and lists, `size` units of the painter from line to line of its em square.
/// Throws Error when no such font is installed.
[[nodiscard]] QFont TextFont(int size, Weight weight = Weight::Normal);

/// UTF-8 text for the toolkit.
[[nodiscard]] QString ToQt(const std::string& text);
[[nodiscard]] QColor ToQt(Color color);

/// The symbols as print shows them: at every size, so small letters are underlined, or a large
/// "c" could be taken for a small "C"; broad letters are narrowed to fit into narrow stipples.
class PrintSymbols {
  public:
    /// Needs a running QGuiApplication. Throws Error when the font is not installed.
    PrintSymbols();

    [[nodiscard]] SymbolAspects Aspects() const;
    /// Draws a symbol with the painter's pen; its box is `height` units tall, capitals fill it.
    void Draw(QPainter& painter, int symbol, QPointF centre, double height) const;
    /// Draws a symbol as one of a list: all in one size, on one base line, capitals `capitals`
    /// units tall and centred.
    void DrawInLine(QPainter& painter, int symbol, QPointF centre, double capitals) const;

  private:
    // In a font of 1 unit.
    struct Shape {
        QRectF Ink;      // from the pen position on the base line, the underline included
        QRectF Bar;      // the underline; empty under capitals and digits
        double Box = 0;  // height that the symbol is scaled by
        double Squeeze = 1;
    };
    static Shape Measure(int symbol, const QFont& font);
    static void DrawShape(QPainter& painter, int symbol, const Shape& shape, double em);

    std::array<Shape, kSymbolCount + 1> shapes_;
    double capital_ = 1;  // height of one
};

}  // namespace vendrel
