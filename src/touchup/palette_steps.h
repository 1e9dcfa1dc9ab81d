#pragma once

#include "touchup/edit_sheet.h"

namespace vendrel {

/// No kit has more paints than symbols that tell them apart.
inline constexpr int kMostPaints = 50;

// The sheet with another palette, its stipples following. The sheet must be without flaw.

/// With more paints at the end.
[[nodiscard]] SheetContents WithPaints(const EditSheet& sheet, const PaintList& paints);
/// Without one; its stipples go to the paint that looks most like it. There must be another.
[[nodiscard]] SheetContents WithoutPaint(const EditSheet& sheet, int paint);
/// With a paint in another one's place; those between make room.
[[nodiscard]] SheetContents WithPaintMoved(const EditSheet& sheet, int from, int to);

}  // namespace vendrel
