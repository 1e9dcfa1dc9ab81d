#pragma once

#include <QtCore/QByteArray>

#include "export/print_symbols.h"
#include "plan/plan_layout.h"
#include "shell/work_state.h"

namespace vendrel {

/// The kit as the page's script reads it, JSON that may stand in a script element. Lengths are
/// tenths of the picture's pixels. `chains` are borders as path data; an area's rings name them
/// from 1 on, negative ones run the other way. A label is its area, middle and height, and both
/// ends of its line where it stands outside; a paint's glyph is drawn in a box 1000 units tall.
[[nodiscard]] QByteArray PageData(const WorkState& state, const PrintPlan& plan,
                                  const PrintSymbols& symbols, const QString& title);

}  // namespace vendrel
