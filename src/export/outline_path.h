#pragma once

#include <QtGui/QPainterPath>

#include "plan/path_text.h"

namespace vendrel {

/// Adds outlines made for a box 1 unit tall, with their middle there and so many pixels tall.
void AddOutline(PathText& text, const QPainterPath& outline, const PlanPoint& centre,
                double height);

}  // namespace vendrel
