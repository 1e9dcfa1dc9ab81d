#pragma once

#include "plan/planned_kit.h"
#include "support/surface.h"

namespace vendrel {

/// The first page of the plan, so many pixels at its longer side. Throws as WriteKitPdf.
[[nodiscard]] Surface PreviewPlan(PlannedKit& kit, int longest);

}  // namespace vendrel
