#pragma once

#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtGui/QPainter>

#include "plan/outlines.h"

namespace vendrel {

/// The pages' unit is a hundredth of a millimetre: fine enough for whole-number font sizes.
inline constexpr double kUnitsPerMm = 100;
inline constexpr int kPdfResolution = 2540;  // units to the inch

[[nodiscard]] constexpr double Mm(double millimetres) {
    return millimetres * kUnitsPerMm;
}
[[nodiscard]] inline QRectF MmRect(double left, double top, double width, double height) {
    return {Mm(left), Mm(top), Mm(width), Mm(height)};
}
[[nodiscard]] inline int FontMm(double millimetres) {
    return static_cast<int>(Mm(millimetres));
}

/// One line of text in a box, cut short to fit, in the painter's font.
void DrawLineOfText(QPainter& painter, const QRectF& box, int flags, const QString& text);
/// A title as large as the box allows, bold: on one line down to two thirds of `millimeters`, else
/// on two. Cut short only where even these are too few.
void DrawTitle(QPainter& painter, const QRectF& box, double millimeters, const QString& text);

}  // namespace vendrel
