#pragma once

#include <QtCore/QPointF>
#include <QtGui/QPainter>
#include <functional>
#include <vector>

namespace vendrel {

/// Draws a symbol `height` units tall around a place.
using SymbolDrawing = std::function<void(QPainter&, QPointF centre, double height)>;

/// Whether a reader knows which way up a symbol stands. Of one who does not a shape and the same
/// turned by a quarter look almost alike.
enum class SymbolTop { Known, Unknown };

/// How alike each two of the symbols look in print to an eye 40 cm away (plan/look_alike.h),
/// at 1.5 mm or at 2 mm, whichever is more. Symmetric.
[[nodiscard]] std::vector<std::vector<double>> Likenesses(const std::vector<SymbolDrawing>& symbols,
                                                          SymbolTop top);

}  // namespace vendrel
