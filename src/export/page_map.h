#pragma once

#include <QtCore/QRectF>
#include <QtGui/QPainter>

#include "plan/page_tiling.h"

namespace vendrel {

/// The pages of a plan in small, drawn as large as fits into the upper part of `box`.
/// With a `current` page that one stands out; without, every page carries its name.
/// Answers the rectangle drawn.
QRectF DrawPageMap(QPainter& painter, const PagePlan& pages, const QRectF& box,
                   const PageTile* current);

/// The largest rectangle of the plan's shape in `box`, in the middle of its upper edge.
[[nodiscard]] QRectF PageMapRect(const PagePlan& pages, const QRectF& box);

/// A line of exactly five centimetres with a mark at each, to the right of `start`; with two inches
/// on its other side for those who read them.
void DrawRuler(QPainter& painter, QPointF start, bool inches);

}  // namespace vendrel
