#pragma once

#include "plan/planned_kit.h"
#include "support/target.h"

namespace vendrel {

/// Writes a page for the tablet beside the easel: one file that shows the plan and its paints and
/// keeps account of what is painted. Needs a running QGuiApplication. Throws Error for an unpainted
/// picture, more paints than symbols or a missing font, FileError.
void WriteKitPage(PlannedKit& kit, const Target& target);

}  // namespace vendrel
