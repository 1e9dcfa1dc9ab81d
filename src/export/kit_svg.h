#pragma once

#include "plan/planned_kit.h"
#include "support/target.h"

namespace vendrel {

/// Writes the plan as one drawing of the canvas' true size, in millimeters: every border once, and
/// symbols as outlines, each in a layer of its own; under them, hidden, a layer for each paint with
/// its areas as closed, filled paths. Needs a running QGuiApplication. Throws Error for an
/// unpainted picture, more paints than symbols or a missing font, FileError.
void WriteKitSvg(PlannedKit& kit, const Target& target);

}  // namespace vendrel
